// Another party that subclassed the control's windows and does something to the control in the middle of a
// message, before or after the control has seen it.
#include "Deeds.h"
#include "HostileTest.h"

#include <set>

namespace quillet::hostile {
namespace {

struct Row {
    char const* name;
    UINT message;
};

constexpr Row kMessages[] = {
    {"WM_LBUTTONDOWN", WM_LBUTTONDOWN},
    {"WM_LBUTTONUP", WM_LBUTTONUP},
    {"WM_LBUTTONDBLCLK", WM_LBUTTONDBLCLK},
    {"WM_MOUSEMOVE", WM_MOUSEMOVE},
    {"WM_PAINT", WM_PAINT},
    {"WM_KEYDOWN", WM_KEYDOWN},
    {"WM_KEYUP", WM_KEYUP},
    {"WM_CHAR", WM_CHAR},
    {"WM_SETFOCUS", WM_SETFOCUS},
    {"WM_KILLFOCUS", WM_KILLFOCUS},
    {"WM_SIZE", WM_SIZE},
    {"WM_SHOWWINDOW", WM_SHOWWINDOW},
    {"WM_WINDOWPOSCHANGING", WM_WINDOWPOSCHANGING},
    {"WM_WINDOWPOSCHANGED", WM_WINDOWPOSCHANGED},
    {"WM_ENABLE", WM_ENABLE},
    {"WM_CAPTURECHANGED", WM_CAPTURECHANGED},
    {"WM_DESTROY", WM_DESTROY},
    {"WM_NCDESTROY", WM_NCDESTROY},
    {"a posted message", kPosted},
};

class HostileSubclass : public HostileControlTest {};
QV_ALL_CONTROLS(HostileSubclass);

TEST_P(HostileSubclass, thatDoesSomethingToTheControlInAnyMessageIsLivedWith)
{
    std::vector<Occasion> occasions;
    for (Row const& row : kMessages)
        for (char const* const when : {"Before(", "After("})
            occasions.push_back({when + std::to_string(row.message) + ')', 4});
    liveThroughDeeds(kind(), occasions, 150);
}

TEST_P(HostileSubclass, seesTheMessagesThatTheTableGoesThrough)
{
    Journal::begin("messages");
    std::set<std::string> seen;
    Deed const none{"Nothing", [](Life&) {}};
    {
        Life life(kind());
        life.heard = [&](std::string const& call) { seen.insert(call); };
        life.arm("After(0)", none);
        life.live();
        life.heard = nullptr;
    }
    for (Row const& row : kMessages)
        EXPECT_TRUE(seen.contains("After(" + std::to_string(row.message) + ')')) << row.name;
}

} // namespace
} // namespace quillet::hostile

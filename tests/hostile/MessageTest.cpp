// Messages to the control's windows: somebody who subclassed them does something to the control in the middle
// of one, or sends what only the system sends.
#include "Deeds.h"
#include "HostileTest.h"
#include "kit/ByName.h"
#include "kit/Hosted.h"

#include <set>

namespace quillet::hostile {
namespace {

struct Row {
    char const* name;
    UINT message;
};

constexpr Row kWatched[] = {{"WM_LBUTTONDOWN", WM_LBUTTONDOWN},
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
                            {"a posted message", kPosted}};

class HostileSubclass : public HostileControlTest {};
QV_ALL_CONTROLS(HostileSubclass);

TEST_P(HostileSubclass, thatDoesSomethingToTheControlInAnyMessageIsLivedWith)
{
    std::vector<Occasion> occasions;
    for (Row const& row : kWatched)
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
    for (Row const& row : kWatched)
        EXPECT_TRUE(seen.contains("After(" + std::to_string(row.message) + ')')) << row.name;
}

class HostileForgery : public HostileControlTest {
protected:
    kit::FakeForm form;
    kit::Hosted control{library(), kind().classId, form, kPlace};
};
QV_ALL_CONTROLS(HostileForgery);

TEST_P(HostileForgery, ofAWindowsEndLeavesTheNextWindowAlone)
{
    control.start();
    HWND const first = surfaceIn(form.window());
    ASSERT_NE(first, nullptr);
    ::SendMessageA(first, WM_NCDESTROY, 0, 0);
    HWND const next = control.window();
    ASSERT_TRUE(::IsWindow(next));
    ASSERT_NE(next, first);
    ::DestroyWindow(first);
    EXPECT_EQ(control.window(), next) << "the first window's real end was taken for the next one's";
    control.remove();
    EXPECT_FALSE(::IsWindow(next));
}

TEST_P(HostileForgery, ofAnInnerWindowsEndLeavesNothingThatFindsTheControl)
{
    control.start();
    HWND const inner = ::GetWindow(surfaceIn(form.window()), GW_CHILD);
    if (!inner)
        return; // a command button has none
    ::SendMessageA(inner, WM_NCDESTROY, 0, 0);
    ::SetParent(inner, form.window()); // it outlives the control there
    control.remove();
    for (UINT const message : {WM_PAINT, WM_LBUTTONDOWN, WM_KEYDOWN, WM_SETFOCUS})
        ::SendMessageA(inner, message, 0, 0);
    ::DestroyWindow(inner);
}

} // namespace
} // namespace quillet::hostile

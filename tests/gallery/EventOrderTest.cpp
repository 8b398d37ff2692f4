// What a button raises under a real mouse, line by line, as the gallery's log has it.
#include "gallery/Demo.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <set>

namespace quillet::gallery::test {
namespace {

using ::testing::ElementsAre;

using Lines = std::vector<std::string>;

constexpr POINT kInside{20, 10}; // pixels of the button's own area

class EventOrder : public ::testing::Test {
protected:
    Demo demo;

    void SetUp() override
    {
        ::SetCursorPos(2, 2);
        demo.form().show();
        demo.focusOn(L"cmdPlain");
        settle();
    }
    void TearDown() override
    {
        ::mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
        ::SetCursorPos(2, 2);
        demo.pump();
    }

    /// Everything that waits has been handled and painted, and nothing is written down yet.
    void settle()
    {
        demo.pump();
        ::RedrawWindow(demo.form().window(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        demo.pump();
        demo.events.clear();
        demo.lines.clear();
    }

    void moveInto()
    {
        POINT at = kInside;
        ::ClientToScreen(demo.control(L"cmdPlain").window(), &at);
        ::SetCursorPos(at.x, at.y);
    }

    /// The lines of what follows an act, up to an event and what is left to handle then. The
    /// system may repeat a move on the spot.
    template <class Act> Lines during(Act const& act, std::string const& last)
    {
        settle();
        act();
        EXPECT_TRUE(demo.waitFor(last));
        demo.pump();
        demo.lines.erase(std::unique(demo.lines.begin(), demo.lines.end(),
                                     [](std::string const& one, std::string const& next) {
                                         return one == next && one.find(".MouseMove(") != std::string::npos;
                                     }),
                         demo.lines.end());
        return demo.lines;
    }

    Lines enter()
    {
        return during([&] { moveInto(); }, "cmdPlain.MouseMove");
    }
    Lines press()
    {
        return during([] { ::mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0); }, "cmdPlain.MouseDown");
    }
    Lines letGo()
    {
        return during([] { ::mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0); }, "cmdPlain.Click");
    }

    /// The line of a mouse event of cmdPlain at the given pixels, which a button measures in twips.
    std::string line(char const* event, POINT pixels, int button) const
    {
        Resolution const scale = screenResolution();
        std::array<char, 96> text{};
        std::snprintf(text.data(), text.size(), "cmdPlain.%s(%d, 0, %ld, %ld)", event, button,
                      scale.twipsX(pixels.x), scale.twipsY(pixels.y));
        return text.data();
    }
};

TEST_F(EventOrder, enteringIsSaidThenPaintedThenTheMoveIsRaised)
{
    EXPECT_THAT(enter(), ElementsAre("cmdPlain.MouseEnter", "cmdPlain.Paint", line("MouseMove", kInside, 0)));
}

TEST_F(EventOrder, aPressOfTheFocusedButtonPaintsItBeforeMouseDown)
{
    enter();
    EXPECT_THAT(press(), ElementsAre("cmdPlain.Paint", line("MouseDown", kInside, 1)));
}

TEST_F(EventOrder, aReleasePaintsThenRaisesMouseUpThenClick)
{
    enter();
    press();
    EXPECT_THAT(letGo(), ElementsAre("cmdPlain.Paint", line("MouseUp", kInside, 1), "cmdPlain.Click"));
}

TEST_F(EventOrder, leavingIsSaidThenPaintedThenTheMoveIsRaised)
{
    enter();
    POINT outside{2, 2};
    Lines const lines = during([&] { ::SetCursorPos(outside.x, outside.y); }, "cmdPlain.MouseMove");
    ::ScreenToClient(demo.control(L"cmdPlain").window(), &outside);
    EXPECT_THAT(lines, ElementsAre("cmdPlain.MouseExit", "cmdPlain.Paint", line("MouseMove", outside, 0)));
}

TEST_F(EventOrder, aPressThatBringsTheFocusPaintsEveryButtonOfTheFormBeforeMouseDown)
{
    demo.focusOn(L"txtName");
    enter();
    Lines lines = press();
    ASSERT_GE(lines.size(), 2U);
    EXPECT_EQ(lines.back(), line("MouseDown", kInside, 1));
    lines.pop_back();
    EXPECT_EQ(lines.back(), "cmdPlain.Paint");
    std::set<std::string> expected;
    for (auto const& control : demo.form().controls())
        if (control->isEmbedding())
            expected.insert(narrow(control->state().name) + ".Paint");
    EXPECT_EQ(std::set<std::string>(lines.begin(), lines.end()), expected);
}

} // namespace
} // namespace quillet::gallery::test

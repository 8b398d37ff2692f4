// The visual states of a flat command button under a real mouse: every transition, and what it raises.
#include "Button.h"
#include "kit/Pump.h"

namespace quillet::input {
namespace {

using testing::ElementsAre;

/// A button with the focus, so that a press does not bring a change of focus along.
class States : public EachHostTest {};

TEST_P(States, movesRaiseMouseEnterOnceInsideAndMouseExitOnceOutside)
{
    EXPECT_THAT(enter(button()), ElementsAre("MouseEnter", "Paint", "MouseMove"));
    EXPECT_EQ(button().look(), "hot");
    EXPECT_EQ(::GetCapture(), button().window());

    EXPECT_THAT(moveInside(button(), kInsideToo), ElementsAre("MouseMove"));
    EXPECT_THAT(moveInside(button(), kInside), ElementsAre("MouseMove"));
    EXPECT_EQ(button().look(), "hot");
    EXPECT_EQ(::GetCapture(), button().window());

    EXPECT_THAT(leave(button()), ElementsAre("MouseExit", "Paint", "MouseMove"));
    EXPECT_EQ(button().look(), "normal");
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_P(States, movesBesideTheButtonRaiseNothing)
{
    EXPECT_TRUE(
        actUntilHandled(WM_MOUSEMOVE, [&] { kit::moveCursorTo(button().window(), kBeside.x, kBeside.y); }));
    EXPECT_THAT(button().happened(), ElementsAre());
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_P(States, aPressAndAReleaseInsideMakeAClick)
{
    enter(button());
    EXPECT_THAT(pressDown(button()), ElementsAre("Paint", "MouseDown"));
    EXPECT_EQ(button().look(), "pressed");
    EXPECT_THAT(letUp(button()), ElementsAre("Paint", "MouseUp", "Click"));
    EXPECT_EQ(button().look(), "hot");
}

TEST_P(States, aPressAndAReleaseLeaveTheCaptureAsItIs)
{
    enter(button());
    pressDown(button());
    EXPECT_EQ(::GetCapture(), button().window());
    letUp(button());
    EXPECT_EQ(::GetCapture(), button().window());
    EXPECT_THAT(moveInside(button()), ElementsAre("MouseMove")) << "no second MouseEnter after a click";
    EXPECT_THAT(leave(button()), ElementsAre("MouseExit", "Paint", "MouseMove"));
}

TEST_P(States, movesInsideWithTheButtonHeldChangeNothing)
{
    enter(button());
    moveInside(button());
    pressDown(button());
    EXPECT_THAT(moveInside(button(), kInside), ElementsAre("MouseMove"));
    EXPECT_EQ(button().look(), "pressed");
    letUp(button());
}

TEST_P(States, draggingOffShowsTheNormalLookAndDraggingBackThePressedOne)
{
    enter(button());
    pressDown(button());
    EXPECT_THAT(dragOff(button()), ElementsAre("Paint", "MouseMove"));
    EXPECT_EQ(button().look(), "normal");
    EXPECT_EQ(::GetCapture(), button().window());
    EXPECT_THAT(
        button().during([&] { kit::moveCursorTo(button().window(), kBeside.x + 5, kBeside.y); }, "MouseMove"),
        ElementsAre("MouseMove"));
    EXPECT_THAT(dragBack(button()), ElementsAre("Paint", "MouseMove"));
    EXPECT_EQ(button().look(), "pressed");
    EXPECT_THAT(letUp(button()), ElementsAre("Paint", "MouseUp", "Click"));
    EXPECT_EQ(button().look(), "hot");
}

TEST_P(States, draggingOffWithTwoButtonsDownKeepsThePressedLookUntilTheLeftOneComesUp)
{
    enter(button());
    pressDown(button());
    pressDown(button(), kit::MouseButton::Right);
    EXPECT_THAT(dragOff(button()), ElementsAre("MouseMove"));
    EXPECT_EQ(button().look(), "pressed");
    EXPECT_EQ(::GetCapture(), button().window());
    EXPECT_THAT(letUp(button(), kit::MouseButton::Right), ElementsAre("MouseUp"));
    EXPECT_EQ(button().look(), "pressed");
    EXPECT_THAT(letUp(button()), ElementsAre("Paint", "MouseUp"));
    EXPECT_EQ(button().look(), "normal");
}

TEST_P(States, aReleaseOutsideIsNoClick)
{
    enter(button());
    pressDown(button());
    dragOff(button());
    EXPECT_THAT(letUp(button()), ElementsAre("Paint", "MouseUp"));
    EXPECT_EQ(button().look(), "normal");
    EXPECT_EQ(::GetCapture(), button().window()) << "the next move gives it back";
    EXPECT_THAT(
        button().during([&] { kit::moveCursorTo(button().window(), kBeside.x + 5, kBeside.y); }, "MouseMove"),
        ElementsAre("MouseExit", "Paint", "MouseMove"));
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_P(States, aReleaseOutsideAfterWhichTheCursorComesBackIsNoSecondMouseEnter)
{
    enter(button());
    pressDown(button());
    dragOff(button());
    letUp(button());
    // The button still has the capture: nothing changes for it but the look, and that at the next painting.
    EXPECT_THAT(dragBack(button()), ElementsAre("MouseMove"));
    EXPECT_EQ(::GetCapture(), button().window());
    leave(button());
}

TEST_P(States, aDoubleClickRaisesOneClickAndOneDblClickAndNoSecondMouseDown)
{
    enter(button());
    Names names = pressDown(button());
    Names const rest[] = {letUp(button()),
                          button().during([] { kit::press(kit::MouseButton::Left); }, "DblClick"),
                          letUp(button())};
    for (Names const& each : rest)
        names.insert(names.end(), each.begin(), each.end());
    EXPECT_THAT(names, ElementsAre("Paint", "MouseDown", "Paint", "MouseUp", "Click", "DblClick", "Paint",
                                   "MouseUp"));
}

TEST_P(States, rightButtonPressesRaiseMouseDownAndMouseUpButNeverShowThePressedState)
{
    enter(button());
    EXPECT_THAT(pressDown(button(), kit::MouseButton::Right), ElementsAre("MouseDown"));
    EXPECT_EQ(button().look(), "hot");
    EXPECT_THAT(letUp(button(), kit::MouseButton::Right), ElementsAre("MouseUp"));
    EXPECT_EQ(button().look(), "hot");
}

TEST_P(States, middleButtonPressesRaiseMouseDownAndMouseUpButNeverShowThePressedState)
{
    enter(button());
    EXPECT_THAT(pressDown(button(), kit::MouseButton::Middle), ElementsAre("MouseDown"));
    EXPECT_EQ(button().look(), "hot");
    EXPECT_THAT(letUp(button(), kit::MouseButton::Middle), ElementsAre("MouseUp"));
    EXPECT_EQ(button().look(), "hot");
}

TEST_P(States, draggingOffWithTheRightButtonKeepsTheCaptureUntilAMoveWithoutAButton)
{
    enter(button());
    pressDown(button(), kit::MouseButton::Right);
    EXPECT_THAT(dragOff(button()), ElementsAre("MouseMove"));
    EXPECT_EQ(::GetCapture(), button().window());
    EXPECT_THAT(letUp(button(), kit::MouseButton::Right), ElementsAre("MouseUp"));
    EXPECT_THAT(
        button().during([&] { kit::moveCursorTo(button().window(), kBeside.x + 5, kBeside.y); }, "MouseMove"),
        ElementsAre("MouseExit", "Paint", "MouseMove"));
}

TEST_P(States, aMoveOntoTheButtonWithAButtonHeldIsNoEntering)
{
    ASSERT_TRUE(kit::moveCursorTo(button().window(), kBeside.x, kBeside.y));
    EXPECT_TRUE(actUntilHandled(WM_LBUTTONDOWN, [] { kit::press(kit::MouseButton::Left); }));
    EXPECT_THAT(
        button().during([&] { kit::moveCursorTo(button().window(), kInside.x, kInside.y); }, "MouseMove"),
        ElementsAre("MouseMove"));
    EXPECT_EQ(button().look(), "normal");
    EXPECT_EQ(::GetCapture(), nullptr);
    kit::release(kit::MouseButton::Left);
    EXPECT_TRUE(kit::pumpUntil([&] { return button().count("MouseUp") > 0; }));
    EXPECT_EQ(button().count("Click"), 0) << "the press was somewhere else";
}

TEST_P(States, aPressOnAButtonWithoutTheFocusGivesItTheFocus)
{
    auto const edit = kit::newEditBox(form.window(), {200, 30, 260, 50});
    ASSERT_TRUE(kit::focus(edit.get()));
    enter(button());
    Names const names = pressDown(button());
    ASSERT_FALSE(names.empty());
    EXPECT_EQ(names.back(), "MouseDown");
    EXPECT_EQ(::GetFocus(), button().window());
    EXPECT_EQ(button().look(), "pressed");
    letUp(button());
    EXPECT_EQ(::GetFocus(), button().window());
}

TEST_P(States, disablingThePressedButtonShowsTheDisabledLookAndForgetsThePress)
{
    enter(button());
    pressDown(button());
    EXPECT_EQ(button()->put_Enabled(VARIANT_FALSE), S_OK);
    EXPECT_EQ(button().look(), "disabled");
    EXPECT_EQ(button()->put_Enabled(VARIANT_TRUE), S_OK);
    EXPECT_EQ(button().look(), "hot") << "over it, but no longer pressed";
    kit::release(kit::MouseButton::Left);
    kit::pumpPending();
}

TEST_P(States, theDisabledButtonStaysDisabledUnderTheCursorAndRaisesNothing)
{
    EXPECT_EQ(button()->put_Enabled(VARIANT_FALSE), S_OK);
    EXPECT_EQ(button().look(), "disabled");
    kit::pumpPending();
    button().happened();
    EXPECT_TRUE(
        actUntilHandled(WM_MOUSEMOVE, [&] { kit::moveCursorTo(button().window(), kInside.x, kInside.y); }));
    EXPECT_TRUE(actUntilHandled(WM_LBUTTONUP, [] {
        kit::press(kit::MouseButton::Left);
        kit::release(kit::MouseButton::Left);
    }));
    EXPECT_TRUE(actUntilHandled(WM_RBUTTONUP, [] {
        kit::press(kit::MouseButton::Right);
        kit::release(kit::MouseButton::Right);
    }));
    EXPECT_THAT(button().happened(), ElementsAre());
    EXPECT_EQ(button().look(), "disabled");
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_P(States, theButtonEnabledAgainFollowsTheMouseAgain)
{
    button()->put_Enabled(VARIANT_FALSE);
    button()->put_Enabled(VARIANT_TRUE);
    EXPECT_EQ(button().look(), "normal");
    EXPECT_THAT(enter(button()), ElementsAre("MouseEnter", "Paint", "MouseMove"));
    EXPECT_EQ(button().look(), "hot");
    leave(button());
}

TEST_P(States, aWindowThatOverlapsTheButtonUnderTheCursorCountsAsNotOver)
{
    // A sibling above the right part of the button's window, and a child inside its left part.
    RECT window;
    ::GetWindowRect(button().window(), &window);
    ::MapWindowPoints(nullptr, ::GetParent(button().window()), reinterpret_cast<POINT*>(&window), 2);
    auto const sibling = kit::newEditBox(::GetParent(button().window()),
                                         {window.left + 90, window.top, window.right, window.bottom});
    ::SetWindowPos(sibling.get(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    auto const child = kit::newEditBox(button().window(), {0, 0, 20, 20});
    kit::pumpPending();

    for (POINT const covered : {kInside, POINT{10, 10}}) {
        EXPECT_THAT(button().during([&] { kit::moveCursorTo(button().window(), 60, 30); }, "MouseMove"),
                    ElementsAre("MouseEnter", "Paint", "MouseMove"));
        EXPECT_THAT(
            button().during([&] { kit::moveCursorTo(button().window(), covered.x, covered.y); }, "MouseMove"),
            ElementsAre("MouseExit", "Paint", "MouseMove"));
        EXPECT_EQ(::GetCapture(), nullptr);
    }
}

TEST_P(States, aReleaseInsideUnderAnOverlappingWindowIsAClickWithoutTheHotLook)
{
    enter(button());
    pressDown(button());
    {
        RECT window;
        ::GetWindowRect(button().window(), &window);
        ::MapWindowPoints(nullptr, ::GetParent(button().window()), reinterpret_cast<POINT*>(&window), 2);
        auto const sibling = kit::newEditBox(::GetParent(button().window()), window);
        ::SetWindowPos(sibling.get(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        Names const names = letUp(button());
        EXPECT_THAT(Names(names.begin(), names.begin() + 2), ElementsAre("Paint", "MouseUp"));
    }
    leave(button());
}

QV_EACH_HOST(States);

} // namespace
} // namespace quillet::input

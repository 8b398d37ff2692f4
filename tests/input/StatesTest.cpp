// The visual states of a flat command button under a real mouse: every transition, and what it raises.
#include "Button.h"
#include "kit/Pump.h"

namespace quillet::input {
namespace {

using kit::MouseButton;
using testing::ElementsAreArray;
using testing::IsEmpty;

Names const kEntered{"MouseEnter", "Paint", "MouseMove"};
Names const kLeft{"MouseExit", "Paint", "MouseMove"};
constexpr POINT kFurther{kBeside.x + 5, kBeside.y};

class States : public EachHostTest {
protected:
    bool holdsTheMouse() { return ::GetCapture() == button().window(); }
    /// The act raised these events, and the button looks like that.
    void expect(Names const& told, Names const& expected, char const* look)
    {
        EXPECT_EQ(told, expected);
        EXPECT_EQ(button().look(), look);
    }
    void expectNoPressedLook(MouseButton which)
    {
        expect(enterAndPress(button(), which), {"MouseDown"}, "hot");
        expect(letUp(button(), which), {"MouseUp"}, "hot");
    }
    /// Another window over a part of the button's, in its coordinates.
    UniqueWindow covered(RECT part)
    {
        HWND const parent = ::GetParent(button().window());
        ::MapWindowPoints(button().window(), parent, reinterpret_cast<POINT*>(&part), 2);
        UniqueWindow sibling = kit::newEditBox(parent, part);
        ::SetWindowPos(sibling.get(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        return sibling;
    }
};

TEST_P(States, movesRaiseMouseEnterOnceInsideAndMouseExitOnceOutside)
{
    expect(enter(button()), kEntered, "hot");
    EXPECT_TRUE(holdsTheMouse());

    EXPECT_THAT(moveInside(button(), kInsideToo), ElementsAreArray({"MouseMove"}));
    expect(moveInside(button(), kInside), {"MouseMove"}, "hot");
    EXPECT_TRUE(holdsTheMouse());

    expect(leave(button()), kLeft, "normal");
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_P(States, movesBesideTheButtonRaiseNothing)
{
    EXPECT_TRUE(
        actUntilHandled(WM_MOUSEMOVE, [&] { kit::moveCursorTo(button().window(), kBeside.x, kBeside.y); }));
    EXPECT_THAT(button().happened(), IsEmpty());
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_P(States, aPressAndAReleaseInsideMakeAClick)
{
    expect(enterAndPress(button()), {"Paint", "MouseDown"}, "pressed");
    expect(letUp(button()), {"Paint", "MouseUp", "Click"}, "hot");
}

TEST_P(States, aPressAndAReleaseLeaveTheCaptureAsItIs)
{
    enterAndPress(button());
    EXPECT_TRUE(holdsTheMouse());
    letUp(button());
    EXPECT_TRUE(holdsTheMouse());
    EXPECT_THAT(moveInside(button()), ElementsAreArray({"MouseMove"}))
        << "no second MouseEnter after a click";
    EXPECT_EQ(leave(button()), kLeft);
}

TEST_P(States, movesInsideWithTheButtonHeldChangeNothing)
{
    enter(button());
    moveInside(button());
    pressDown(button());
    expect(moveInside(button(), kInside), {"MouseMove"}, "pressed");
    letUp(button());
}

TEST_P(States, draggingOffShowsTheNormalLookAndDraggingBackThePressedOne)
{
    enterAndPress(button());
    expect(dragOff(button()), {"Paint", "MouseMove"}, "normal");
    EXPECT_TRUE(holdsTheMouse());
    EXPECT_THAT(moveTo(button(), kFurther), ElementsAreArray({"MouseMove"}));
    expect(dragBack(button()), {"Paint", "MouseMove"}, "pressed");
    expect(letUp(button()), {"Paint", "MouseUp", "Click"}, "hot");
}

TEST_P(States, draggingOffWithTwoButtonsDownKeepsThePressedLookUntilTheLeftOneComesUp)
{
    enterAndPress(button());
    pressDown(button(), MouseButton::Right);
    expect(dragOff(button()), {"MouseMove"}, "pressed");
    EXPECT_TRUE(holdsTheMouse());
    expect(letUp(button(), MouseButton::Right), {"MouseUp"}, "pressed");
    expect(letUp(button()), {"Paint", "MouseUp"}, "normal");
}

TEST_P(States, aReleaseOutsideIsNoClick)
{
    enterAndPress(button());
    dragOff(button());
    expect(letUp(button()), {"Paint", "MouseUp"}, "normal");
    EXPECT_TRUE(holdsTheMouse()) << "the next move gives it back";
    EXPECT_THAT(moveTo(button(), kFurther), kLeft);
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_P(States, aReleaseOutsideAfterWhichTheCursorComesBackIsNoSecondMouseEnter)
{
    enterAndPress(button());
    dragOff(button());
    letUp(button());
    // The button still has the capture: nothing changes for it but the look, and that at the next painting.
    EXPECT_THAT(dragBack(button()), ElementsAreArray({"MouseMove"}));
    EXPECT_TRUE(holdsTheMouse());
    leave(button());
}

TEST_P(States, aDoubleClickRaisesOneClickAndOneDblClickAndNoSecondMouseDown)
{
    Names names = enterAndPress(button());
    Names const rest[] = {letUp(button()), button().during([] { kit::press(MouseButton::Left); }, "DblClick"),
                          letUp(button())};
    for (Names const& each : rest)
        names.insert(names.end(), each.begin(), each.end());
    EXPECT_THAT(names, ElementsAreArray({"Paint", "MouseDown", "Paint", "MouseUp", "Click", "DblClick",
                                         "Paint", "MouseUp"}));
}

TEST_P(States, rightButtonPressesRaiseMouseDownAndMouseUpButNeverShowThePressedState)
{
    expectNoPressedLook(MouseButton::Right);
}

TEST_P(States, middleButtonPressesRaiseMouseDownAndMouseUpButNeverShowThePressedState)
{
    expectNoPressedLook(MouseButton::Middle);
}

TEST_P(States, draggingOffWithTheRightButtonKeepsTheCaptureUntilAMoveWithoutAButton)
{
    enterAndPress(button(), MouseButton::Right);
    EXPECT_THAT(dragOff(button()), ElementsAreArray({"MouseMove"}));
    EXPECT_TRUE(holdsTheMouse());
    EXPECT_THAT(letUp(button(), MouseButton::Right), ElementsAreArray({"MouseUp"}));
    EXPECT_THAT(moveTo(button(), kFurther), kLeft);
}

TEST_P(States, aMoveOntoTheButtonWithAButtonHeldIsNoEntering)
{
    ASSERT_TRUE(kit::moveCursorTo(button().window(), kBeside.x, kBeside.y));
    EXPECT_TRUE(actUntilHandled(WM_LBUTTONDOWN, [] { kit::press(MouseButton::Left); }));
    EXPECT_THAT(moveTo(button(), kInside), ElementsAreArray({"MouseMove"}));
    EXPECT_EQ(button().look(), "normal");
    EXPECT_EQ(::GetCapture(), nullptr);
    kit::release(MouseButton::Left);
    EXPECT_TRUE(kit::pumpUntil([&] { return button().count("MouseUp") > 0; }));
    EXPECT_EQ(button().count("Click"), 0) << "the press was somewhere else";
}

TEST_P(States, aPressOnAButtonWithoutTheFocusGivesItTheFocus)
{
    auto const edit = kit::newEditBox(form.window(), {200, 30, 260, 50});
    ASSERT_TRUE(kit::focus(edit.get()));
    Names const names = enterAndPress(button());
    ASSERT_FALSE(names.empty());
    EXPECT_EQ(names.back(), "MouseDown");
    EXPECT_EQ(::GetFocus(), button().window());
    EXPECT_EQ(button().look(), "pressed");
    letUp(button());
    EXPECT_EQ(::GetFocus(), button().window());
}

TEST_P(States, disablingThePressedButtonShowsTheDisabledLookAndForgetsThePress)
{
    enterAndPress(button());
    EXPECT_EQ(button()->put_Enabled(VARIANT_FALSE), S_OK);
    EXPECT_EQ(button().look(), "disabled");
    EXPECT_EQ(button()->put_Enabled(VARIANT_TRUE), S_OK);
    EXPECT_EQ(button().look(), "hot") << "over it, but no longer pressed";
    kit::release(MouseButton::Left);
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
        kit::press(MouseButton::Left);
        kit::release(MouseButton::Left);
    }));
    EXPECT_TRUE(actUntilHandled(WM_RBUTTONUP, [] {
        kit::press(MouseButton::Right);
        kit::release(MouseButton::Right);
    }));
    EXPECT_THAT(button().happened(), IsEmpty());
    EXPECT_EQ(button().look(), "disabled");
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_P(States, theButtonEnabledAgainFollowsTheMouseAgain)
{
    button()->put_Enabled(VARIANT_FALSE);
    button()->put_Enabled(VARIANT_TRUE);
    EXPECT_EQ(button().look(), "normal");
    expect(enter(button()), kEntered, "hot");
    leave(button());
}

TEST_P(States, aWindowThatOverlapsTheButtonUnderTheCursorCountsAsNotOver)
{
    RECT client;
    ::GetClientRect(button().window(), &client);
    auto const sibling = covered({90, 0, client.right, client.bottom});
    auto const child = kit::newEditBox(button().window(), {0, 0, 20, 20});
    kit::pumpPending();

    for (POINT const place : {kInside, POINT{10, 10}}) {
        EXPECT_THAT(moveTo(button(), {60, 30}), kEntered);
        EXPECT_THAT(moveTo(button(), place), kLeft);
        EXPECT_EQ(::GetCapture(), nullptr);
    }
}

TEST_P(States, aReleaseInsideUnderAnOverlappingWindowIsAClickWithoutTheHotLook)
{
    enterAndPress(button());
    {
        RECT client;
        ::GetClientRect(button().window(), &client);
        auto const sibling = covered(client);
        Names const names = letUp(button());
        EXPECT_THAT(Names(names.begin(), names.begin() + 2), ElementsAreArray({"Paint", "MouseUp"}));
    }
    leave(button());
}

QV_EACH_HOST(States);

} // namespace
} // namespace quillet::input

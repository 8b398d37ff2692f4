// What is a click under the real mouse, and a capture that somebody else takes.
#include "Button.h"
#include "kit/ModalDialog.h"
#include "kit/Pump.h"

namespace quillet::input {
namespace {

using kit::MouseButton;
using testing::ElementsAreArray;
using testing::IsEmpty;

class Clicks : public EachHostTest {
protected:
    void TearDown() override
    {
        kit::release(MouseButton::Left);
        button().events().action = nullptr;
        EXPECT_TRUE(kit::moveCursorAway());
        kit::pumpPending();
        ::ReleaseCapture();
        EachHostTest::TearDown();
    }
    /// Presses on the form, drags onto the button and lets go: the names of the events but Paint and
    /// MouseMove.
    Names draggedOntoAndLetGo()
    {
        kit::moveCursorTo(button().window(), kBeside.x, kBeside.y);
        kit::pumpPending();
        button().events().forget();
        EXPECT_TRUE(kit::dragFrom(button().window(), kBeside, kInside));
        EXPECT_TRUE(kit::pumpUntil([&] { return button().count("MouseMove") > 0; }));
        kit::release(MouseButton::Left);
        EXPECT_TRUE(kit::pumpUntil([&] { return button().count("MouseUp") > 0; }));
        kit::pumpPending();
        Names names = button().happened();
        std::erase(names, "Paint");
        std::erase(names, "MouseMove");
        return names;
    }
    void letGoSomewhereElse()
    {
        EXPECT_TRUE(actUntilHandled(WM_LBUTTONUP, [] { kit::release(MouseButton::Left); }));
    }
};

TEST_P(Clicks, needAPressOfTheirOwnAfterOneWhoseReleaseWasAnothersMouse)
{
    enterAndPress(button());
    ::SetCapture(form.window());
    kit::moveCursorTo(button().window(), kBeside.x, kBeside.y);
    letGoSomewhereElse();
    ::ReleaseCapture();
    EXPECT_EQ(button().count("MouseUp"), 0);
    EXPECT_THAT(draggedOntoAndLetGo(), ElementsAreArray({"MouseUp"}));
}

TEST_P(Clicks, needAPressOfTheirOwnAfterOneThatOpenedADialog)
{
    enter(button());
    button().once("MouseDown", [&] {
        kit::runDialog(form.window(), {150, 120}, [](HWND dialog) {
            kit::moveCursorTo(dialog, 20, 20);
            kit::release(MouseButton::Left);
            EXPECT_TRUE(kit::pumpUntil([] { return ::GetKeyState(VK_LBUTTON) >= 0; }));
        });
    });
    pressDown(button());
    ASSERT_FALSE(button().events().action) << "no dialog came";
    EXPECT_EQ(button().count("MouseUp"), 0);
    EXPECT_THAT(draggedOntoAndLetGo(), ElementsAreArray({"MouseUp"}));
}

TEST_P(Clicks, needAPressOfTheirOwnAfterOneThatNobodyHeldTheMouseFor)
{
    enter(button());
    ::ReleaseCapture();
    pressDown(button());
    kit::moveCursorTo(button().window(), kBeside.x, kBeside.y);
    letGoSomewhereElse();
    ::ReleaseCapture(); // which some moves in between may have taken
    EXPECT_TRUE(actUntilHandled(WM_MOUSELEAVE, [] {}));
    EXPECT_THAT(draggedOntoAndLetGo(), ElementsAreArray({"MouseUp"}));
}

// Where the release went is nobody's business: moves tell that no button is held.
TEST_P(Clicks, needAPressOfTheirOwnAfterAMoveWithoutTheButton)
{
    enter(button());
    kit::sendMouse(button().window(), kInside,
                   {{WM_LBUTTONDOWN, MK_LBUTTON}, {WM_MOUSEMOVE, MK_RBUTTON}, {WM_LBUTTONUP, 0}});
    EXPECT_EQ(button().count("MouseUp"), 1) << "which every release raises";
    EXPECT_EQ(button().count("Click"), 0);
}

TEST_P(Clicks, needAPressOfTheirOwnAfterWindowsEndedWhatWasGoingOn)
{
    enter(button());
    kit::sendMouse(button().window(), kInside,
                   {{WM_LBUTTONDOWN, MK_LBUTTON}, {WM_CANCELMODE, 0}, {WM_LBUTTONUP, 0}});
    EXPECT_EQ(button().count("Click"), 0);
}

TEST_P(Clicks, comeFromMovesWithTheButtonHeld)
{
    enterAndPress(button());
    moveInside(button());
    EXPECT_THAT(letUp(button()), ElementsAreArray({"Paint", "MouseUp", "Click"}));
}

TEST_P(Clicks, comeWithoutTheMouseHeldToo)
{
    enter(button());
    ::ReleaseCapture();
    pressDown(button());
    EXPECT_THAT(letUp(button()), ElementsAreArray({"Paint", "MouseUp", "Click"}));
}

TEST_P(Clicks, ofTheOtherButtonsInQuickSuccessionAreAllMouseDownAndMouseUp)
{
    enter(button());
    for (MouseButton const which : {MouseButton::Right, MouseButton::Middle})
        for (int times = 0; times < 3; ++times) {
            EXPECT_THAT(pressDown(button(), which), ElementsAreArray({"MouseDown"})) << times;
            EXPECT_THAT(letUp(button(), which), ElementsAreArray({"MouseUp"})) << times;
        }
}

QV_EACH_HOST(Clicks);

class LostCapture : public HoveredTest {
protected:
    /// What happens when the cursor goes to a place that is not the button's.
    Names left() { return moveTo(button, kBeside, "MouseExit"); }
};

TEST_F(LostCapture, endsTheHotLookWithMouseExitAsSoonAsTheMouseIsGone)
{
    ::SetCapture(form.window());
    kit::pumpPending();
    EXPECT_EQ(button.look(), "hot") << "the mouse is still there";
    EXPECT_EQ(button.count("MouseExit"), 0);
    EXPECT_THAT(left(), ElementsAreArray({"MouseExit", "Paint"}));
    EXPECT_EQ(button.look(), "normal");
    EXPECT_EQ(::GetCapture(), form.window()) << "whose capture stays";
}

TEST_F(LostCapture, endsTheHotLookWhileADialogIsOpenThatAClickOpened)
{
    std::string look;
    int exits = 0;
    button.once("Click", [&] {
        kit::runDialog(form.window(), {150, 120}, [&](HWND dialog) {
            kit::moveCursorTo(dialog, 20, 20);
            EXPECT_TRUE(kit::pumpUntil([&] { return button.count("MouseExit") > 0; }));
            look = button.look();
            exits = button.count("MouseExit");
        });
    });
    pressDown(button);
    letUp(button);
    EXPECT_EQ(look, "normal");
    EXPECT_EQ(exits, 1);
    EXPECT_THAT(enter(button), ElementsAreArray({"MouseEnter", "Paint", "MouseMove"}));
}

TEST_F(LostCapture, thatHappensOutsideIsTheEndAtOnce)
{
    pressDown(button);
    dragOff(button);
    EXPECT_THAT(button.during([&] { ::SetCapture(form.window()); }, "MouseExit"),
                ElementsAreArray({"MouseExit", "Paint"}));
    kit::release(kit::MouseButton::Left);
    kit::pumpPending();
}

TEST_F(LostCapture, keepsEachMouseEnterWithItsMouseExitWhenTheMouseComesBackBefore)
{
    Names told = {"MouseEnter"};
    button.events().action = [&](auto const&) {
        std::string const name = button.lastEvent();
        if (name == "MouseEnter" || name == "MouseExit")
            told.push_back(name);
    };
    for (POINT const back : {kInsideToo, kInside, kInsideToo}) {
        ::SetCapture(form.window());
        ::ReleaseCapture();
        kit::moveCursorTo(button.window(), kBeside.x, kBeside.y);
        kit::moveCursorTo(button.window(), back.x, back.y);
        EXPECT_TRUE(kit::pumpUntil([&] { return ::GetCapture() == button.window(); }));
    }
    kit::moveCursorTo(button.window(), kBeside.x, kBeside.y);
    EXPECT_TRUE(kit::pumpUntil([&] { return ::GetCapture() == nullptr; }));
    kit::pumpPending();
    ASSERT_EQ(told.size() % 2, 0U);
    for (size_t i = 0; i < told.size(); ++i)
        EXPECT_EQ(told[i], i % 2 ? "MouseExit" : "MouseEnter") << i;
}

TEST_F(LostCapture, toOneselfIsNone)
{
    button.events().forget();
    ::SetCapture(button.window());
    EXPECT_THAT(left(), ElementsAreArray({"MouseExit", "Paint", "MouseMove"}));
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(LostCapture, ofAButtonThatIsDisabledUnderTheMouseIsTheEnd)
{
    Names names = button.during([&] { button->put_Enabled(VARIANT_FALSE); }, "MouseExit");
    std::erase(names, "Paint");
    EXPECT_THAT(names, ElementsAreArray({"MouseExit"}));
    EXPECT_EQ(button.look(), "disabled");
}

TEST_F(LostCapture, ofAHiddenButtonRaisesNothing)
{
    ::ReleaseCapture();
    button.hosted().doVerb(OLEIVERB_HIDE);
    kit::moveCursorTo(form.window(), 200, 200);
    button.events().forget();
    ::SendMessageA(button.window(), WM_MOUSELEAVE, 0, 0);
    kit::pumpPending();
    EXPECT_THAT(button.happened(), IsEmpty());
}

TEST_F(LostCapture, isNotWhatAWindowOfItsOwnMouseSays)
{
    button.events().forget();
    ::SendMessageA(button.window(), WM_MOUSELEAVE, 0, 0);
    EXPECT_THAT(button.happened(), IsEmpty()) << "it has the capture: the next move tells";
    EXPECT_THAT(left(), ElementsAreArray({"MouseExit", "Paint", "MouseMove"}));
}

} // namespace
} // namespace quillet::input

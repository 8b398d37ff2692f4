// What is a click: a press and a release on the button, and nothing that happened elsewhere in between.
#include "Gestures.h"
#include "kit/ModalDialog.h"
#include "kit/Pump.h"

namespace quillet::input {
namespace {

using kit::MouseButton;
using testing::ElementsAre;

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
    enter(button());
    pressDown(button());
    ::SetCapture(form.window());
    kit::moveCursorTo(button().window(), kBeside.x, kBeside.y);
    letGoSomewhereElse();
    ::ReleaseCapture();
    EXPECT_EQ(button().count("MouseUp"), 0);
    EXPECT_THAT(draggedOntoAndLetGo(), ElementsAre("MouseUp"));
}

TEST_P(Clicks, needAPressOfTheirOwnAfterOneThatOpenedADialog)
{
    enter(button());
    button().events().action = [&](auto const&) {
        if (button().lastEvent() != "MouseDown")
            return;
        button().events().action = nullptr;
        kit::runDialog(form.window(), {150, 120}, [](HWND dialog) {
            kit::moveCursorTo(dialog, 20, 20);
            kit::release(MouseButton::Left);
            EXPECT_TRUE(kit::pumpUntil([] { return ::GetKeyState(VK_LBUTTON) >= 0; }));
        });
    };
    pressDown(button());
    ASSERT_FALSE(button().events().action) << "no dialog came";
    EXPECT_EQ(button().count("MouseUp"), 0);
    EXPECT_THAT(draggedOntoAndLetGo(), ElementsAre("MouseUp"));
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
    EXPECT_THAT(draggedOntoAndLetGo(), ElementsAre("MouseUp"));
}

// Where the release went is nobody's business: moves tell that no button is held.
TEST_P(Clicks, needAPressOfTheirOwnAfterAMoveWithoutTheButton)
{
    enter(button());
    LPARAM const at = MAKELPARAM(kInside.x, kInside.y);
    for (auto const& [message, keys] :
         {std::pair{UINT{WM_LBUTTONDOWN}, WPARAM{MK_LBUTTON}}, {WM_MOUSEMOVE, MK_RBUTTON}, {WM_LBUTTONUP, 0}})
        ::SendMessageA(button().window(), message, keys, at);
    EXPECT_EQ(button().count("MouseUp"), 1) << "which every release raises";
    EXPECT_EQ(button().count("Click"), 0);
}

TEST_P(Clicks, needAPressOfTheirOwnAfterWindowsEndedWhatWasGoingOn)
{
    enter(button());
    LPARAM const at = MAKELPARAM(kInside.x, kInside.y);
    ::SendMessageA(button().window(), WM_LBUTTONDOWN, MK_LBUTTON, at);
    ::SendMessageA(button().window(), WM_CANCELMODE, 0, 0);
    ::SendMessageA(button().window(), WM_LBUTTONUP, 0, at);
    EXPECT_EQ(button().count("Click"), 0);
}

TEST_P(Clicks, comeFromMovesWithTheButtonHeld)
{
    enter(button());
    pressDown(button());
    moveInside(button());
    EXPECT_THAT(letUp(button()), ElementsAre("Paint", "MouseUp", "Click"));
}

TEST_P(Clicks, comeWithoutTheMouseHeldToo)
{
    enter(button());
    ::ReleaseCapture();
    pressDown(button());
    EXPECT_THAT(letUp(button()), ElementsAre("Paint", "MouseUp", "Click"));
}

TEST_P(Clicks, ofTheOtherButtonsInQuickSuccessionAreAllMouseDownAndMouseUp)
{
    enter(button());
    for (MouseButton const which : {MouseButton::Right, MouseButton::Middle})
        for (int times = 0; times < 3; ++times) {
            EXPECT_THAT(pressDown(button(), which), ElementsAre("MouseDown")) << times;
            EXPECT_THAT(letUp(button(), which), ElementsAre("MouseUp")) << times;
        }
}

QV_EACH_HOST(Clicks);

} // namespace
} // namespace quillet::input

// What is a click: a press and a release on the button, and nothing that happened elsewhere in between.
#include "Mouse.h"
#include "kit/ModalDialog.h"

namespace quillet::image {
namespace {

using kit::MouseButton;
using testing::ElementsAre;

class ImageClick : public ImageInputTest {
protected:
    /// Presses on the form, drags onto the button and lets go: the names of the events but Paint, MouseMove
    /// and MouseEnter.
    Names draggedOntoAndLetGo()
    {
        kit::moveCursorTo(button().window(), kBeside.x, kBeside.y);
        kit::pumpPending();
        button().events().forget();
        EXPECT_TRUE(kit::dragFrom(button().window(), kBeside, kInside));
        EXPECT_TRUE(kit::pumpUntil([&] { return button().count("MouseMove") > 0; }));
        Names names = button().release();
        std::erase(names, "Paint");
        return names;
    }
    void letGoSomewhereElse()
    {
        kit::release(MouseButton::Left);
        EXPECT_TRUE(kit::pumpUntil([] { return ::GetKeyState(VK_LBUTTON) >= 0; }));
    }
};
QV_BOTH_HOSTS(ImageClick);

TEST_P(ImageClick, needsAPressOfItsOwnAfterOneThatWasDraggedOffAndLetGoOutside)
{
    button().moveTo(kInside);
    button().press();
    button().moveTo(kBeside);
    letGoSomewhereElse();
    EXPECT_THAT(draggedOntoAndLetGo(), ElementsAre("MouseUp"));
}

TEST_P(ImageClick, needsAPressOfItsOwnAfterOneThatOpenedADialog)
{
    button().moveTo(kInside);
    bool opened = false;
    button().events().action = [&](auto const& event) {
        if (event.id != eventid::command::MouseDown)
            return;
        opened = true;
        kit::runDialog(form.window(), {150, 120}, [&](HWND dialog) {
            kit::moveCursorTo(dialog, 20, 20);
            letGoSomewhereElse();
        });
    };
    button().press();
    button().events().action = nullptr;
    ASSERT_TRUE(opened);
    EXPECT_THAT(draggedOntoAndLetGo(), ElementsAre("MouseUp"));
}

TEST_P(ImageClick, needsAPressOfItsOwnAfterAMoveWithoutTheButton)
{
    button().moveTo(kInside);
    LPARAM const at = MAKELPARAM(kInside.x, kInside.y);
    for (auto const& [message, keys] :
         {std::pair{UINT{WM_LBUTTONDOWN}, WPARAM{MK_LBUTTON}}, {WM_MOUSEMOVE, MK_RBUTTON}, {WM_LBUTTONUP, 0}})
        ::SendMessageA(button().window(), message, keys, at);
    EXPECT_EQ(button().count("MouseUp"), 1) << "which every release raises";
    EXPECT_EQ(button().count("Click"), 0);
}

TEST_P(ImageClick, ofTheOtherButtonsInQuickSuccessionIsAllMouseDownAndMouseUp)
{
    button().moveTo(kInside);
    for (MouseButton const which : {MouseButton::Right, MouseButton::Middle})
        for (int times = 0; times < 3; ++times) {
            EXPECT_THAT(button().press(which), ElementsAre("MouseDown")) << times;
            EXPECT_THAT(button().release(which), ElementsAre("MouseUp")) << times;
        }
}

} // namespace
} // namespace quillet::image

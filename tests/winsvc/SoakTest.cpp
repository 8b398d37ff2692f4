// Many lives one after another leave nothing behind: no window, no handle, no memory.
#include "ServiceTest.h"
#include "input/Gestures.h"
#include "kit/Usage.h"

namespace quillet::winsvc {
namespace {

/// Create, load, activate, hover, press, show the way out, destroy.
void liveOnce(kit::Library const& library, kit::FakeForm& form, int number)
{
    RunningButton button(library, form, number);
    button.start();
    button.extender().offer(L"ToolTipText", Variant::ofString(L"Soaked"));
    ASSERT_TRUE(kit::moveCursorTo(button.window(), number % 2 ? 60 : 90, 20));
    ASSERT_TRUE(kit::pumpUntil([&] { return button.count("MouseEnter") > 0; }));
    kit::press(kit::MouseButton::Left);
    kit::release(kit::MouseButton::Left);
    ASSERT_TRUE(kit::pumpUntil([&] { return button.count("Click") > 0; }));
    button.remove();
    ASSERT_EQ(::GetCapture(), nullptr);
}

/// Whether the thread's tooltip window lives throughout, or goes with the first of the controls.
enum class ToolTip { Kept, Gone };

class Soak : public ServiceTest {
protected:
    static void soak(ToolTip toolTip)
    {
        kit::FakeForm form;
        RunningButton keeper(library(), form, 4);
        if (toolTip == ToolTip::Kept)
            keeper.start();
        kit::expectNothingIsLeft(300, [&](int i) {
            liveOnce(library(), form, 1 + i % 2);
            form.record().forget();
            keeper.events().forget();
        });
    }
};

TEST_ON_NEW_THREAD(Soak, ofThreeHundredLivesBesideAControlThatStaysLeavesNothingBehind)
{
    soak(ToolTip::Kept);
}

TEST_ON_NEW_THREAD(Soak, ofThreeHundredLivesOneAtATimeLeavesNothingBehind) { soak(ToolTip::Gone); }

} // namespace
} // namespace quillet::winsvc

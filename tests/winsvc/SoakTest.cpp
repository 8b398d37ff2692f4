// Many lives one after another leave nothing behind: no window, no handle, no memory.
#include "ServiceTest.h"
#include "input/Gestures.h"
#include "kit/Usage.h"

namespace quillet::winsvc {
namespace {

constexpr int kRounds = 300;
constexpr int kWarmUp = 20; // until caches of the system's have what they keep

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
        kit::Usage before{};
        for (int i = 0; i < kRounds; ++i) {
            if (i == kWarmUp)
                before = kit::Usage::now();
            ASSERT_NO_FATAL_FAILURE(liveOnce(library(), form, 1 + i % 2)) << "round " << i;
            form.record().forget();
            keeper.events().forget();
        }
        EXPECT_TRUE(kit::moveCursorAway());
        kit::pumpPending();
        kit::Usage const after = kit::Usage::now();
        EXPECT_EQ(after.windows, before.windows);
        EXPECT_LE(after.window, before.window + kHandlesAtRandom);
        EXPECT_LE(after.gdi, before.gdi + kHandlesAtRandom);
        EXPECT_LE(after.bytes, before.bytes + kBytesAtRandom);
    }

private:
    // Far below one handle, or the smallest block, a round.
    static constexpr int kHandlesAtRandom = 40;
    static constexpr size_t kBytesAtRandom = 2048;
};

TEST_ON_NEW_THREAD(Soak, ofThreeHundredLivesBesideAControlThatStaysLeavesNothingBehind)
{
    soak(ToolTip::Kept);
}

TEST_ON_NEW_THREAD(Soak, ofThreeHundredLivesOneAtATimeLeavesNothingBehind) { soak(ToolTip::Gone); }

} // namespace
} // namespace quillet::winsvc

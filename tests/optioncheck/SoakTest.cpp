// Many hovers and many lives leave nothing behind: no window, no handle, no memory.
#include "Box.h"
#include "kit/UiThread.h"
#include "kit/Usage.h"

namespace quillet::box {
namespace {

constexpr int kFills = 3000;
constexpr int kLives = 200;
constexpr int kWarmUp = 20; // until caches of the system's have what they keep

using Soak = EachBoxTest;

/// The fill never gives its device context back. As the window owns its one, that costs nothing.
TEST_P(Soak, ofThreeThousandFillsLosesNoDeviceContext)
{
    Box box(kind(), library(), form);
    box.start();
    HDC const own = ::GetDC(box.inner());
    for (int i = 0; i < kWarmUp; ++i)
        kit::callByName(box.dispatch(), L"Refresh");
    int const before = kit::Usage::now().gdi;
    for (int i = 0; i < kFills; ++i)
        kit::callByName(box.dispatch(), L"Refresh");
    EXPECT_LE(kit::Usage::now().gdi, before + 20);
    EXPECT_EQ(::GetDC(box.inner()), own);
}

TEST_P(Soak, ofTwoHundredLivesLeavesNothingBehind)
{
    kit::onNewThread([this] {
        kit::FakeForm own;
        kit::Usage before{};
        for (int i = 0; i < kLives; ++i) {
            if (i == kWarmUp)
                before = kit::Usage::now();
            Box box(kind(), library(), own);
            box.start();
            box.setValue(1);
            box.put(L"Enabled", Variant::ofBool(false));
            box.remove();
            own.record().forget();
        }
        kit::Usage const after = kit::Usage::now();
        EXPECT_EQ(after.windows, before.windows);
        EXPECT_LE(after.window, before.window + 40);
        EXPECT_LE(after.gdi, before.gdi + 40);
        EXPECT_LE(after.bytes, before.bytes + 4096);
    });
}

QV_EACH_BOX(Soak);

} // namespace
} // namespace quillet::box

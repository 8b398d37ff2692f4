// Many hovers and many lives leave nothing behind: no window, no handle, no memory.
#include "Box.h"
#include "kit/UiThread.h"
#include "kit/Usage.h"

namespace quillet::box {
namespace {

constexpr int kFills = 3000;
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

TEST_P(Soak, ofThreeHundredLivesLeavesNothingBehind)
{
    kit::onNewThread([this] {
        kit::FakeForm own;
        kit::expectNothingIsLeft(300, [&](int) {
            Box box(kind(), library(), own);
            box.start();
            box.setValue(1);
            box.put(L"Enabled", Variant::ofBool(false));
            box.remove();
            own.record().forget();
        });
    });
}

QV_EACH_BOX(Soak);

} // namespace
} // namespace quillet::box

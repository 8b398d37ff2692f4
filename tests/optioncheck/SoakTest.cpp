// Many hovers and many lives leave nothing behind: no window, no handle, no memory.
#include "Box.h"
#include "kit/UiThread.h"

#include <algorithm>

namespace quillet::box {
namespace {

constexpr int kFills = 3000;
constexpr int kLives = 200;
constexpr int kWarmUp = 20; // until caches of the system's have what they keep

/// The place in its table that a new handle gets: it climbs as long as handles are lost.
int placeOfNewGdiHandle()
{
    UniqueBrush const brush(::CreateSolidBrush(0));
    return LOWORD(HandleToULong(brush.get()));
}

int placeOfNewWindow()
{
    UniqueWindow const window(
        ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr));
    return LOWORD(HandleToULong(window.get()));
}

size_t bytesInUse()
{
    HANDLE heaps[64];
    DWORD const count = std::min<DWORD>(::GetProcessHeaps(64, heaps), 64);
    size_t bytes = 0;
    for (DWORD i = 0; i < count; ++i) {
        ::HeapLock(heaps[i]);
        PROCESS_HEAP_ENTRY entry{};
        while (::HeapWalk(heaps[i], &entry))
            if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY)
                bytes += entry.cbData;
        ::HeapUnlock(heaps[i]);
    }
    return bytes;
}

using Soak = EachBoxTest;

/// The fill never gives its device context back. As the window owns its one, that costs nothing.
TEST_P(Soak, ofThreeThousandFillsLosesNoDeviceContext)
{
    Box box(kind(), library(), form);
    box.start();
    HDC const own = ::GetDC(box.inner());
    for (int i = 0; i < kWarmUp; ++i)
        kit::callByName(box.dispatch(), L"Refresh");
    int const before = placeOfNewGdiHandle();
    for (int i = 0; i < kFills; ++i)
        kit::callByName(box.dispatch(), L"Refresh");
    EXPECT_LE(placeOfNewGdiHandle(), before + 20);
    EXPECT_EQ(::GetDC(box.inner()), own);
}

TEST_P(Soak, ofTwoHundredLivesLeavesNothingBehind)
{
    kit::onNewThread([this] {
        kit::FakeForm own;
        int windows = 0;
        int gdi = 0;
        size_t bytes = 0;
        for (int i = 0; i < kLives; ++i) {
            if (i == kWarmUp) {
                windows = placeOfNewWindow();
                gdi = placeOfNewGdiHandle();
                bytes = bytesInUse();
            }
            Box box(kind(), library(), own);
            box.start();
            box.setValue(1);
            box.put(L"Enabled", Variant::ofBool(false));
            box.remove();
            own.record().forget();
        }
        EXPECT_LE(placeOfNewWindow(), windows + 40);
        EXPECT_LE(placeOfNewGdiHandle(), gdi + 40);
        EXPECT_LE(bytesInUse(), bytes + 4096);
    });
}

QV_EACH_BOX(Soak);

} // namespace
} // namespace quillet::box

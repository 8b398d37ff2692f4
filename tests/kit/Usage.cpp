// What a process and a thread hold at a moment.
#include "kit/Usage.h"

#include "base/Handles.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>

namespace quillet::kit {

namespace {

BOOL CALLBACK countOne(HWND, LPARAM count)
{
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

BOOL CALLBACK countWithChildren(HWND window, LPARAM count)
{
    ::EnumChildWindows(window, countOne, count);
    return countOne(window, count);
}

/// Some systems serve a size of block from groups of many once a few thousand of that size were asked for,
/// each thread from its own, and count a whole group as in use: a heap then grows where nothing is kept.
/// Afterwards the calling thread has its groups, in the process's heap and in that of the language's run
/// time.
void settleHeap()
{
    thread_local bool settled = false;
    if (std::exchange(settled, true))
        return;
    constexpr std::size_t kStep = 2 * sizeof(void*); // from one size to the next
    constexpr std::size_t kLargestOfAGroup = 2048;
    constexpr int kEnough = 4096;
    HANDLE const heap = ::GetProcessHeap();
    for (std::size_t size = kStep; size <= kLargestOfAGroup; size += kStep)
        for (int i = 0; i < kEnough; ++i) {
            ::HeapFree(heap, 0, ::HeapAlloc(heap, 0, size));
            std::free(std::malloc(size));
        }
}

/// Bytes in use on all heaps of the process.
std::size_t bytesInUse()
{
    HANDLE heaps[64];
    DWORD const count = std::min<DWORD>(::GetProcessHeaps(64, heaps), 64);
    std::size_t bytes = 0;
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

/// The lowest place in its table that one of a few new handles gets: it climbs as long as handles are lost.
int placeOfNewGdiHandle()
{
    std::array<UniqueBrush, 64> brushes;
    int lowest = 0xFFFF;
    for (UniqueBrush& brush : brushes) {
        brush.reset(::CreateSolidBrush(0));
        lowest = std::min<int>(lowest, LOWORD(HandleToULong(brush.get())));
    }
    return lowest;
}

int placeOfNewWindow()
{
    UniqueWindow const window(
        ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr));
    return LOWORD(HandleToULong(window.get()));
}

} // namespace

int windowsOfThread()
{
    int count = 0;
    ::EnumThreadWindows(::GetCurrentThreadId(), countWithChildren, reinterpret_cast<LPARAM>(&count));
    return count;
}

Usage Usage::now()
{
    settleHeap();
    return {windowsOfThread(), placeOfNewWindow(), placeOfNewGdiHandle(), bytesInUse()};
}

void expectNothingIsLeft(int rounds, std::function<void(int)> const& round)
{
    constexpr int kWarmUp = 20;
    constexpr int kPlaces = 40;          // far below one a round
    constexpr std::size_t kBytes = 2048; // below the smallest block a round, 16 bytes
    auto usageAfter = [&, next = 0](int many) mutable {
        for (int const end = next + many; next < end && !testing::Test::HasFatalFailure(); ++next)
            round(next);
        return Usage::now();
    };
    Usage const before = usageAfter(kWarmUp);
    Usage const halfway = usageAfter(rounds / 2);
    Usage const after = usageAfter(rounds / 2);
    EXPECT_EQ(after.windows, before.windows);
    EXPECT_LE(after.window, before.window + kPlaces);
    EXPECT_LE(after.gdi, before.gdi + kPlaces);
    EXPECT_TRUE(halfway.bytes <= before.bytes + kBytes || after.bytes <= halfway.bytes + kBytes)
        << before.bytes << " bytes in use before, " << halfway.bytes << " halfway, " << after.bytes
        << " after";
}

} // namespace quillet::kit

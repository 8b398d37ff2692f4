// The count of what is alive in the component.
#include "base/Module.h"

#include <gtest/gtest.h>

namespace quillet {
namespace {

TEST(Module, countsAnObjectForAsLongAsItLives)
{
    long const before = liveObjects();
    {
        LiveObject const first;
        LiveObject const second;
        EXPECT_EQ(liveObjects(), before + 2);
    }
    EXPECT_EQ(liveObjects(), before);
}

TEST(Module, countsALockUntilItIsTakenBack)
{
    long const before = liveObjects();
    addLiveObject();
    EXPECT_EQ(liveObjects(), before + 1);
    removeLiveObject();
    EXPECT_EQ(liveObjects(), before);
}

DWORD WINAPI makeAndFree(void*)
{
    for (int i = 0; i < 100000; ++i)
        LiveObject const object;
    return 0;
}

TEST(Module, countsWhatSeveralThreadsMakeAndFree)
{
    long const before = liveObjects();
    HANDLE const threads[] = {::CreateThread(nullptr, 0, &makeAndFree, nullptr, 0, nullptr),
                              ::CreateThread(nullptr, 0, &makeAndFree, nullptr, 0, nullptr)};
    EXPECT_EQ(::WaitForMultipleObjects(2, threads, TRUE, 60000), DWORD{WAIT_OBJECT_0});
    for (HANDLE const handle : threads)
        ::CloseHandle(handle);
    EXPECT_EQ(liveObjects(), before);
}

TEST(Module, remembersItsInstance)
{
    HINSTANCE const before = moduleInstance();
    setModuleInstance(::GetModuleHandleW(nullptr));
    EXPECT_EQ(moduleInstance(), ::GetModuleHandleW(nullptr));
    setModuleInstance(before);
}

} // namespace
} // namespace quillet

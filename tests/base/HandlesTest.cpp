// Owners of handles and scopes of selection: closed once, at the right moment.
#include "base/Handles.h"

#include <gtest/gtest.h>

#include <vector>

namespace quillet {
namespace {

std::vector<int> g_closed;

struct NumberTraits {
    using Handle = int;
    static void close(int number) noexcept { g_closed.push_back(number); }
};
using UniqueNumber = UniqueHandle<NumberTraits>;

class Handles : public testing::Test {
protected:
    Handles() { g_closed.clear(); }
};

TEST_F(Handles, anOwnerClosesItsHandleOnceAndAnEmptyOneNothing)
{
    {
        UniqueNumber const owner(7);
        UniqueNumber const empty;
        EXPECT_TRUE(owner);
        EXPECT_FALSE(empty);
    }
    EXPECT_EQ(g_closed, std::vector{7});
}

TEST_F(Handles, movingTransfersTheHandle)
{
    {
        UniqueNumber first(7);
        UniqueNumber second(std::move(first));
        EXPECT_FALSE(first); // NOLINT(bugprone-use-after-move): that is the question
        UniqueNumber third(8);
        third = std::move(second);
        EXPECT_EQ(g_closed, std::vector{8});
        EXPECT_EQ(third.get(), 7);
    }
    EXPECT_EQ(g_closed, (std::vector{8, 7}));
}

TEST_F(Handles, releaseLetsGoWithoutClosingAndResetClosesWhatWasHeld)
{
    UniqueNumber owner(7);
    EXPECT_EQ(owner.release(), 7);
    EXPECT_FALSE(owner);
    owner.reset(8);
    owner.reset(9);
    owner.reset();
    EXPECT_EQ(g_closed, (std::vector{8, 9}));
}

TEST_F(Handles, gdiObjectsAreGoneAfterTheirOwners)
{
    HGDIOBJ handle = nullptr;
    {
        UniquePen const pen(::CreatePen(PS_SOLID, 1, 0));
        handle = pen.get();
        EXPECT_EQ(::GetObjectType(handle), DWORD{OBJ_PEN});
    }
    EXPECT_EQ(::GetObjectType(handle), 0U);
}

TEST_F(Handles, aSelectionLastsForItsScope)
{
    UniqueMemoryDc const dc(::CreateCompatibleDC(nullptr));
    HGDIOBJ const before = ::GetCurrentObject(dc.get(), OBJ_PEN);
    {
        SelectScope const selected(dc.get(), ::GetStockObject(WHITE_PEN));
        EXPECT_EQ(::GetCurrentObject(dc.get(), OBJ_PEN), ::GetStockObject(WHITE_PEN));
    }
    EXPECT_EQ(::GetCurrentObject(dc.get(), OBJ_PEN), before);
}

} // namespace
} // namespace quillet

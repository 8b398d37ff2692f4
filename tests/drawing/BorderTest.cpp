// The three-dimensional border: its pixels, the calls that draw them, and where it overflows.
#include "drawing/BoundSurface.h"

#include <gtest/gtest.h>

namespace quillet {
namespace {

class BorderCalls : public NotedSurface {
protected:
    HRESULT draw(long rings)
    {
        return thrownBy([&] { m_surface.Draw3DBorder(kRed, kBlue, rings); });
    }
    void expectStockObjects() const
    {
        EXPECT_EQ(::GetCurrentObject(dc(), OBJ_PEN), ::GetStockObject(BLACK_PEN));
        EXPECT_EQ(::GetCurrentObject(dc(), OBJ_BRUSH), ::GetStockObject(WHITE_BRUSH));
    }
};

/// What a surface of that size shows with so many rings.
std::string bordered(int width, int height, long rings)
{
    BoundSurface bound(width, height);
    bound.surface.Draw3DBorder(kRed, kBlue, rings);
    return bound.picture();
}

TEST(Draw3DBorder, ofOneRingHasTheTopColourInTheTopLeftCornerAlone)
{
    EXPECT_EQ(bordered(7, 5, 1), "RRRRRRB\n"
                                 "R.....B\n"
                                 "R.....B\n"
                                 "R.....B\n"
                                 "BBBBBBB\n");
}

TEST(Draw3DBorder, ofTwoRingsAddsTheSameRingOnePixelFurtherIn)
{
    EXPECT_EQ(bordered(8, 6, 2), "RRRRRRRB\n"
                                 "RRRRRRBB\n"
                                 "RR....BB\n"
                                 "RR....BB\n"
                                 "RBBBBBBB\n"
                                 "BBBBBBBB\n");
}

TEST_F(BorderCalls, noRingIsDrawnForAWidthOfZeroOrLessAndTheResultIsAnEmptyVariant)
{
    begin();
    for (long const width : {0L, -1L, kMin + 1})
        EXPECT_EQ(m_surface.Draw3DBorder(kRed, kBlue, width).type(), VT_EMPTY);
    expectCalls({});
    EXPECT_EQ(m_surface.Draw3DBorder(kRed, kBlue, 1).type(), VT_EMPTY);
}

TEST_F(BorderCalls, aRingIsDrawnWithTwoPensThatGoAndLeavesTheStockPenAndBrushSelected)
{
    begin();
    m_surface.Draw3DBorder(0x0000FF, 0xFF0000, 1);
    expectCalls({
        "GetStockObject 5 -> NULL_BRUSH",
        "SelectObject dc1 NULL_BRUSH -> WHITE_BRUSH",
        "SetROP2 dc1 13",
        "MoveToEx dc1 0 4 none",
        "CreatePen 0 1 0000ff -> pen1",
        "SelectObject dc1 pen1 -> BLACK_PEN",
        "LineTo dc1 0 0",
        "LineTo dc1 6 0",
        "GetStockObject 7 -> BLACK_PEN",
        "SelectObject dc1 BLACK_PEN -> pen1",
        "DeleteObject pen1",
        "CreatePen 0 1 ff0000 -> pen2",
        "SelectObject dc1 pen2 -> BLACK_PEN",
        "LineTo dc1 6 4",
        "LineTo dc1 -1 4",
        "GetStockObject 7 -> BLACK_PEN",
        "SelectObject dc1 BLACK_PEN -> pen2",
        "GetStockObject 0 -> WHITE_BRUSH",
        "SelectObject dc1 WHITE_BRUSH -> NULL_BRUSH",
        "DeleteObject pen2",
        "ReleaseDC none dc1",
    });
    expectStockObjects();
    EXPECT_EQ(::GetROP2(dc()), R2_COPYPEN);
}

TEST_F(BorderCalls, thePenAndBrushThatWereSelectedBeforeAreNotRestored)
{
    begin();
    ::SelectObject(dc(), ::GetStockObject(WHITE_PEN));
    ::SelectObject(dc(), ::GetStockObject(GRAY_BRUSH));
    m_surface.Draw3DBorder(kRed, kBlue, 1);
    expectStockObjects();
}

TEST_F(BorderCalls, aPenThatCannotBeMadeDoesNotEndTheRing)
{
    begin();
    m_gdi.fail("CreatePen");
    EXPECT_EQ(draw(1), S_OK);
    EXPECT_EQ(m_record->countFrom("LineTo"), 4);
    EXPECT_EQ(m_record->count("ReleaseDC none dc1"), 1);
}

TEST_F(BorderCalls, ringsGoOnWhenTheyMeetInTheMiddle)
{
    begin();
    EXPECT_EQ(draw(9), S_OK);
    EXPECT_EQ(m_record->countFrom("ReleaseDC"), 9);
    EXPECT_EQ(m_record->count("MoveToEx dc1 8 -4 none"), 1);
}

TEST_F(BorderCalls, aNumberOfRingsThatHasNoPredecessorOverflows)
{
    begin();
    EXPECT_EQ(draw(kMin), kOverflow);
    expectCalls({});
}

TEST_F(BorderCalls, aRightEdgeThatLeavesTheRangeOverflowsBeforeAnythingIsDrawn)
{
    begin(kMin, 5);
    EXPECT_EQ(draw(1), kOverflow);
    expectCalls({});
}

TEST_F(BorderCalls, aLastRowThatLeavesTheRangeOverflowsBeforeTheFirstLine)
{
    begin(7, kMin);
    EXPECT_EQ(draw(1), kOverflow);
    expectCalls(
        {"GetStockObject 5 -> NULL_BRUSH", "SelectObject dc1 NULL_BRUSH -> WHITE_BRUSH", "SetROP2 dc1 13"});
}

TEST_F(BorderCalls, theSecondRingsBottomEdgeOverflowsAfterTheFirstRingIsDrawn)
{
    begin(7, kMin + 1);
    EXPECT_EQ(draw(3), kOverflow);
    EXPECT_EQ(m_record->countFrom("ReleaseDC"), 1);
}

} // namespace
} // namespace quillet

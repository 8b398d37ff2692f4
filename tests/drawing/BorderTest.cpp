// The three-dimensional border: its pixels, the calls that draw them, and where it overflows.
#include "drawing/BoundSurface.h"
#include "drawing/GdiCalls.h"

#include <gtest/gtest.h>

namespace quillet {
namespace {

using Calls = std::vector<std::string>;

class BorderCalls : public testing::Test {
protected:
    void initialize(long width, long height)
    {
        m_surface.Initialize(m_target.dc(), width, height);
        m_record->forget();
    }

    kit::Canvas m_target{7, 5, kGrey};
    kit::SharedRecord m_record = std::make_shared<kit::Record>();
    GdiCalls m_gdi{m_record};
    OffScreenDC m_surface;
};

TEST(Draw3DBorder, ofOneRingHasTheTopColourInTheTopLeftCornerAlone)
{
    BoundSurface bound(7, 5);
    bound.surface.Draw3DBorder(kRed, kBlue, 1);
    EXPECT_EQ(bound.picture(), "RRRRRRB\n"
                               "R.....B\n"
                               "R.....B\n"
                               "R.....B\n"
                               "BBBBBBB\n");
}

TEST(Draw3DBorder, ofTwoRingsAddsTheSameRingOnePixelFurtherIn)
{
    BoundSurface bound(8, 6);
    bound.surface.Draw3DBorder(kRed, kBlue, 2);
    EXPECT_EQ(bound.picture(), "RRRRRRRB\n"
                               "RRRRRRBB\n"
                               "RR....BB\n"
                               "RR....BB\n"
                               "RBBBBBBB\n"
                               "BBBBBBBB\n");
}

TEST_F(BorderCalls, noRingIsDrawnForAWidthOfZeroOrLessAndTheResultIsAnEmptyVariant)
{
    initialize(7, 5);
    for (long const width : {0L, -1L, kMin + 1})
        EXPECT_EQ(m_surface.Draw3DBorder(kRed, kBlue, width).type(), VT_EMPTY);
    EXPECT_EQ(m_record->take(), Calls{});
    EXPECT_EQ(m_surface.Draw3DBorder(kRed, kBlue, 1).type(), VT_EMPTY);
}

TEST_F(BorderCalls, aRingIsDrawnWithTwoPensThatGoAndLeavesTheStockPenAndBrushSelected)
{
    initialize(7, 5);
    m_surface.Draw3DBorder(0x0000FF, 0xFF0000, 1);
    EXPECT_EQ(m_record->take(), (Calls{
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
                                }));
    HDC const dc = static_cast<HDC>(m_gdi.handle("dc1"));
    EXPECT_EQ(::GetCurrentObject(dc, OBJ_PEN), ::GetStockObject(BLACK_PEN));
    EXPECT_EQ(::GetCurrentObject(dc, OBJ_BRUSH), ::GetStockObject(WHITE_BRUSH));
    EXPECT_EQ(::GetROP2(dc), R2_COPYPEN);
}

TEST_F(BorderCalls, thePenAndBrushThatWereSelectedBeforeAreNotRestored)
{
    initialize(7, 5);
    HDC const dc = static_cast<HDC>(m_gdi.handle("dc1"));
    ::SelectObject(dc, ::GetStockObject(WHITE_PEN));
    ::SelectObject(dc, ::GetStockObject(GRAY_BRUSH));
    m_surface.Draw3DBorder(kRed, kBlue, 1);
    EXPECT_EQ(::GetCurrentObject(dc, OBJ_PEN), ::GetStockObject(BLACK_PEN));
    EXPECT_EQ(::GetCurrentObject(dc, OBJ_BRUSH), ::GetStockObject(WHITE_BRUSH));
}

TEST_F(BorderCalls, aPenThatCannotBeMadeDoesNotEndTheRing)
{
    initialize(7, 5);
    m_gdi.fail("CreatePen");
    EXPECT_EQ(thrownBy([&] { m_surface.Draw3DBorder(kRed, kBlue, 1); }), S_OK);
    EXPECT_EQ(m_record->countFrom("LineTo"), 4);
    EXPECT_EQ(m_record->count("ReleaseDC none dc1"), 1);
}

TEST_F(BorderCalls, ringsGoOnWhenTheyMeetInTheMiddle)
{
    initialize(7, 5);
    EXPECT_EQ(thrownBy([&] { m_surface.Draw3DBorder(kRed, kBlue, 9); }), S_OK);
    EXPECT_EQ(m_record->countFrom("ReleaseDC"), 9);
    EXPECT_EQ(m_record->count("MoveToEx dc1 8 -4 none"), 1);
}

TEST_F(BorderCalls, aNumberOfRingsThatHasNoPredecessorOverflows)
{
    initialize(7, 5);
    EXPECT_EQ(thrownBy([&] { m_surface.Draw3DBorder(kRed, kBlue, kMin); }), kOverflow);
    EXPECT_EQ(m_record->take(), Calls{});
}

TEST_F(BorderCalls, aRightEdgeThatLeavesTheRangeOverflowsBeforeAnythingIsDrawn)
{
    initialize(kMin, 5);
    EXPECT_EQ(thrownBy([&] { m_surface.Draw3DBorder(kRed, kBlue, 1); }), kOverflow);
    EXPECT_EQ(m_record->take(), Calls{});
}

TEST_F(BorderCalls, aLastRowThatLeavesTheRangeOverflowsBeforeTheFirstLine)
{
    initialize(7, kMin);
    EXPECT_EQ(thrownBy([&] { m_surface.Draw3DBorder(kRed, kBlue, 1); }), kOverflow);
    EXPECT_EQ(m_record->take(), (Calls{"GetStockObject 5 -> NULL_BRUSH",
                                       "SelectObject dc1 NULL_BRUSH -> WHITE_BRUSH", "SetROP2 dc1 13"}));
}

TEST_F(BorderCalls, theSecondRingsBottomEdgeOverflowsAfterTheFirstRingIsDrawn)
{
    initialize(7, kMin + 1);
    EXPECT_EQ(thrownBy([&] { m_surface.Draw3DBorder(kRed, kBlue, 3); }), kOverflow);
    EXPECT_EQ(m_record->countFrom("ReleaseDC"), 1);
}

} // namespace
} // namespace quillet

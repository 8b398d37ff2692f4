// The resolution of colours.
#include "drawing/Colour.h"

#include <gtest/gtest.h>

namespace quillet {
namespace {

TEST(ResolvedColour, ofAnRgbValueIsTheValue)
{
    for (OLE_COLOR const colour : {0x00000000UL, 0x00FFFFFFUL, 0x00C56A31UL, 0x000000FFUL})
        EXPECT_EQ(resolvedColour(colour), colour);
}

TEST(ResolvedColour, ofASystemColourIsItsCurrentValue)
{
    for (int const index :
         {COLOR_HIGHLIGHT, COLOR_BTNFACE, COLOR_BTNSHADOW, COLOR_BTNTEXT, COLOR_BTNHIGHLIGHT})
        EXPECT_EQ(resolvedColour(0x80000000U | static_cast<OLE_COLOR>(index)), ::GetSysColor(index)) << index;
}

TEST(ResolvedColour, ofASystemColourThatDoesNotExistIsTheValueAsStored)
{
    EXPECT_EQ(resolvedColour(0x800000FF), COLORREF{0x800000FF});
    EXPECT_EQ(resolvedColour(0x8100000F), COLORREF{0x8100000F});
}

TEST(ResolvedColour, thatCannotBeTranslatedIsWhatTheCallerHadBefore)
{
    EXPECT_EQ(resolvedColour(0x800000FF, 0x123456), COLORREF{0x123456});
    EXPECT_EQ(resolvedColour(0x00ABCDEF, 0x123456), COLORREF{0x00ABCDEF});
}

} // namespace
} // namespace quillet

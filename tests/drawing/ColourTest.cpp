// The desktop's colours by name, and the resolution of colours.
#include "drawing/Colour.h"

#include "drawing/SystemColours.h"

#include <gtest/gtest.h>

namespace quillet {
namespace {

/// What forms have saved for as long as there have been forms, written by hand.
TEST(SystemColours, haveTheNumbersThatFormsSave)
{
    EXPECT_EQ(colour::kSelectionHighlight, 0x8000000DU);
    EXPECT_EQ(colour::kButtonFace, 0x8000000FU);
    EXPECT_EQ(colour::kButtonShadow, 0x80000010U);
    EXPECT_EQ(colour::kGreyText, 0x80000011U);
    EXPECT_EQ(colour::kButtonText, 0x80000012U);
    EXPECT_EQ(colour::k3dHighlight, 0x80000014U);
    EXPECT_EQ(colour::k3dDarkShadow, 0x80000015U);
    EXPECT_EQ(colour::k3dLight, 0x80000016U);
}

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

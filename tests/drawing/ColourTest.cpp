// The desktop's colours by name and resolved, and the tints of the task-pane look.
#include "drawing/Colour.h"

#include "base/RunTimeError.h"
#include "drawing/BoundSurface.h"
#include "drawing/SystemColours.h"
#include "drawing/xpstate.h"
#include "kit/SystemColours.h"

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

/// The button face and the selection colour.
struct SchemeScope : kit::SystemColours {
    SchemeScope(COLORREF face, COLORREF selection)
        : SystemColours({COLOR_BTNFACE, COLOR_HIGHLIGHT}, {face, selection})
    {}
};

struct Scheme {
    COLORREF face;
    COLORREF selection;
    COLORREF deep;
    COLORREF light;
};

constexpr Scheme kSchemes[] = {
    {0x00D8E9EC, 0x00C56A31, 0x00DEB296, 0x00DAC7B7},
    {0x00C8D0D4, 0x006A240A, 0x00AF8C80, 0x00B6A59F},
    {0x00FFFFFF, 0x00000000, 0x00808080, 0x00B2B2B2},
    {0x00000000, 0x00FFFFFF, 0x00E4E4E4, 0x00808080},
};

TEST(StateTint, hasTheKnownValuesOfCommonSchemes)
{
    for (Scheme const& row : kSchemes) {
        EXPECT_EQ(stateTint(row.face, row.selection, VARIANT_TRUE), row.deep) << std::hex << row.face;
        EXPECT_EQ(stateTint(row.face, row.selection, VARIANT_FALSE), row.light) << std::hex << row.face;
    }
}

/// One channel of the tint in whole numbers: its fraction over 510, rounded with halves to the even
/// neighbour.
COLORREF tintedExactly(COLORREF face, COLORREF selection, bool deep)
{
    COLORREF const lift = deep ? 200 * (255 - face) : 100 * (255 - selection);
    COLORREF const over510 = lift + 255 * (selection + face);
    COLORREF const whole = over510 / 510;
    COLORREF const rest = over510 % 510;
    return whole + (rest > 255 || (rest == 255 && whole % 2 != 0) ? 1 : 0);
}

TEST(StateTint, isTheNearestWholeNumberForEveryFaceAndEverySelection)
{
    for (COLORREF face = 0; face < 256; ++face)
        for (COLORREF selection = 0; selection < 256; ++selection) {
            // The other two channels have values of their own: none may get into its neighbour.
            COLORREF const deep = stateTint(RGB(255, face, 0), RGB(0, selection, 255), VARIANT_TRUE);
            COLORREF const light = stateTint(RGB(255, 0, face), RGB(0, 255, selection), VARIANT_FALSE);
            ASSERT_EQ(deep, RGB(128, tintedExactly(face, selection, true), 228)) << face << ' ' << selection;
            ASSERT_EQ(light, RGB(178, 128, tintedExactly(face, selection, false)))
                << face << ' ' << selection;
        }
}

TEST(StateTint, isDeepForAnyValueButZero)
{
    for (VARIANT_BOOL const deep : {VARIANT_BOOL{1}, VARIANT_BOOL{2}, VARIANT_BOOL{-2}})
        EXPECT_EQ(stateTint(0x00D8E9EC, 0x00C56A31, deep), COLORREF{0x00DEB296});
}

TEST(StateTint, roundsAChannelOfExactlyOneHalfToTheEvenNeighbour)
{
    // On a white face the lift is 0, so a channel is the mean with 255: of 46 it is 150.5, of 48 151.5.
    EXPECT_EQ(stateTint(0x00FFFFFF, 0x0030002E, VARIANT_TRUE), COLORREF{0x00988096});
}

TEST(StateTint, neverHasBitsAboveBit23AndEveryChannelIsItsOwn)
{
    for (COLORREF face = 0; face < 256; ++face)
        for (COLORREF selection = 0; selection < 256; ++selection)
            for (VARIANT_BOOL const deep : {VARIANT_TRUE, VARIANT_FALSE}) {
                COLORREF const tint = stateTint(face * 0x010101, selection * 0x010101, deep);
                ASSERT_EQ(tint, (tint & 0xFFU) * 0x010101U) << face << ' ' << selection;
            }
}

TEST(XpStateColor, followsTheDesktopsSchemeAtOnce)
{
    COLORREF const before = XPStateColor(VARIANT_TRUE);
    {
        SchemeScope const scheme(0x00D8E9EC, 0x00C56A31);
        ASSERT_EQ(::GetSysColor(COLOR_BTNFACE), COLORREF{0x00D8E9EC});
        EXPECT_EQ(XPStateColor(VARIANT_TRUE), COLORREF{0x00DEB296});
        EXPECT_EQ(XPStateColor(VARIANT_FALSE), COLORREF{0x00DAC7B7});
    }
    EXPECT_EQ(XPStateColor(VARIANT_TRUE), before);
}

TEST(Clamp, answersTheValueInsideItsBoundsAndTheBoundOutside)
{
    EXPECT_EQ(Clamp(-5, 0, 255), 0);
    EXPECT_EQ(Clamp(300, 0, 255), 255);
    EXPECT_EQ(Clamp(128, 0, 255), 128);
    EXPECT_EQ(Clamp(0, 0, 255), 0);
    EXPECT_EQ(Clamp(255, 0, 255), 255);
}

TEST(Clamp, addsTheBoundsWhenTheyCrossAndTheValueIsBetween)
{
    EXPECT_EQ(Clamp(5, 10, 2), 12);
    EXPECT_EQ(Clamp(5, 10, -3), 7);
}

TEST(Clamp, answersOneBoundWhenTheyCrossAndTheValueIsBeyondOnlyOne)
{
    EXPECT_EQ(Clamp(1, 10, 2), 10);
    EXPECT_EQ(Clamp(11, 10, 2), 2);
}

TEST(Clamp, raisesOverflowWhereASumOrAProductLeavesTheRange)
{
    EXPECT_EQ(thrownBy([] { Clamp(5, kMax, 1); }), kOverflow);
    EXPECT_EQ(thrownBy([] { Clamp(kMin, kMin, 0); }), kOverflow);
    EXPECT_EQ(Clamp(kMin, 0, 1), 0);
    EXPECT_EQ(Clamp(kMax, kMin, kMax), kMax);
}

} // namespace
} // namespace quillet

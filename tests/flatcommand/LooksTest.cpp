// The looks of qvFlatCommand, pixel by pixel.
#include "FlatButton.h"
#include "kit/ButtonLook.h"

namespace quillet::flat {
namespace {

class FlatLooks : public ShownTest {
protected:
    void expectDrawn(Look const& look) const
    {
        EXPECT_EQ(button->DrawButton(), S_OK);
        expect(look);
    }
    void expectRefreshed(Look const& look) const
    {
        EXPECT_EQ(button->Refresh(), S_OK);
        expect(look);
    }
    void expect(Look const& look) const { EXPECT_EQ(button.differencesFrom(look), ""); }
};

TEST_F(FlatLooks, normalShowsForeBackAndBorderColourAndTheCaptionAtItsIndent)
{
    expect(normalLook());
    button.setCaption(L"Plain");
    expect(normalLook(L"Plain"));
    button.setColors();
    expect(lookOf(kFore, kBack, kBorder, L"Plain"));
}

TEST_F(FlatLooks, hotShowsTheHotColoursAndWidth)
{
    button.setCaption(L"&Hot");
    EXPECT_EQ(button->put_HotBorderWidth(Variant::ofShort(4).get()), S_OK);
    button.makeHot();
    expect(withBorder(4, hotLook(L"&Hot")));
    button->put_HotForeColor(RGB(1, 1, 1));
    button->put_HotBackColor(RGB(200, 200, 1));
    button->put_HotBorderColor(RGB(3, 200, 3));
    expectRefreshed(withBorder(4, lookOf(RGB(1, 1, 1), RGB(200, 200, 1), RGB(3, 200, 3), L"&Hot")));
    button.leave();
    expect(normalLook(L"&Hot"));
}

// Put under the cursor and away again, with no message in between: only painting finds out.
TEST_F(FlatLooks, drawButtonDrawsTheStateThatTheLastPaintingFound)
{
    ASSERT_TRUE(kit::moveCursorTo(form.window(), 80, 200));
    kit::pumpPending();
    button.place({20, 180, 140, 220});
    expectDrawn(normalLook());
    expectRefreshed(hotLook());
    button.place(kPlace);
    expectDrawn(hotLook());
    expectRefreshed(normalLook());
}

TEST_F(FlatLooks, pressedShowsThePressedColoursAndWidth)
{
    button.setCaption(L"&Press");
    EXPECT_EQ(button->put_ShowFocusRectangle(VARIANT_FALSE), S_OK);
    EXPECT_EQ(button->put_PressedBorderWidth(Variant::ofShort(3).get()), S_OK);
    EXPECT_EQ(button->put_PressedForeColor(RGB(1, 200, 1)), S_OK);
    EXPECT_EQ(button->put_PressedBorderColor(RGB(200, 3, 3)), S_OK);
    button.makePressed();
    // The press gave it the focus.
    Look look =
        emphasised(withBorder(3, lookOf(RGB(1, 200, 1), pressedLook().back, RGB(200, 3, 3), L"&Press")));
    expect(look);
    EXPECT_EQ(button->put_PressedBackColor(RGB(5, 55, 155)), S_OK);
    ASSERT_EQ(button->Refresh(), S_OK);
    look.back = RGB(5, 55, 155);
    expect(look);
    button.leave();
    expect(emphasised(normalLook(L"&Press")));
}

TEST_F(FlatLooks, taskPanePressedIsTheDeepBlendWithASelectionBorderAndNoEmphasis)
{
    button.setCaption(L"T&ask");
    EXPECT_EQ(button->put_OfficeXPColors(VARIANT_TRUE), S_OK);
    EXPECT_EQ(button->put_PressedBorderWidth(Variant::ofShort(2).get()), S_OK);
    button.makePressed();
    Look look = focused(withBorder(2, taskPanePressedLook(L"T&ask")));
    look.emphasis = 0;
    expect(look);
}

TEST_F(FlatLooks, atDesignTimeAPressedStateNeverShows)
{
    EXPECT_EQ(button->put_ShowFocusRectangle(VARIANT_FALSE), S_OK);
    button.makePressed();
    button.setUserMode(false);
    expectDrawn(emphasised(normalLook()));
    button.setUserMode(true);
}

TEST_F(FlatLooks, hotBackColorSetAtRestChangesNothingUntilTheMouseEnters)
{
    EXPECT_EQ(button->put_HotBackColor(RGB(9, 99, 199)), S_OK);
    kit::pumpPending();
    expect(normalLook());
    expectRefreshed(normalLook());
    button.makeHot();
    Look look = hotLook();
    look.back = RGB(9, 99, 199);
    expect(look);
}

TEST_F(FlatLooks, disabledDiffersFromNormalByItsCaptionColourAlone)
{
    button.setCaption(L"&Off");
    button.setColors();
    button.setWidth(2);
    EXPECT_EQ(button->put_Enabled(VARIANT_FALSE), S_OK);
    Look look = withBorder(2, lookOf(disabledLook().fore, kBack, kBorder, L"&Off"));
    expect(look);
    EXPECT_EQ(button->put_DisabledForeColor(RGB(250, 1, 2)), S_OK);
    look.fore = RGB(250, 1, 2);
    expect(look);
    EXPECT_EQ(button->put_Enabled(VARIANT_TRUE), S_OK);
    look.fore = kFore;
    expect(look);
}

TEST_F(FlatLooks, disabledStaysDisabledUnderTheCursor)
{
    EXPECT_EQ(button->put_Enabled(VARIANT_FALSE), S_OK);
    button.makeHot();
    expect(disabledLook());
}

TEST_F(FlatLooks, taskPaneAtRestIsTextOnFaceInShadowWhateverTheColourProperties)
{
    button.setColors();
    button.setWidth(2);
    button.setCaption(L"T&ask");
    EXPECT_EQ(button->put_OfficeXPColors(VARIANT_TRUE), S_OK);
    expect(withBorder(2, taskPaneNormalLook(L"T&ask")));
}

TEST_F(FlatLooks, taskPaneHotIsABlendWithASelectionBorder)
{
    button.setColors();
    button.setCaption(L"T&ask");
    EXPECT_EQ(button->put_OfficeXPColors(VARIANT_TRUE), S_OK);
    EXPECT_EQ(button->put_HotBorderWidth(Variant::ofShort(2).get()), S_OK);
    button.makeHot();
    expect(withBorder(2, taskPaneHotLook(L"T&ask")));
}

TEST_F(FlatLooks, taskPaneDisabledIsShadowOnFaceInShadow)
{
    button.setColors();
    button.setCaption(L"T&ask");
    EXPECT_EQ(button->put_OfficeXPColors(VARIANT_TRUE), S_OK);
    EXPECT_EQ(button->put_Enabled(VARIANT_FALSE), S_OK);
    expect(taskPaneDisabledLook(L"T&ask"));
}

// The worked examples of the blend, so that the expectation above is itself checked.
TEST_F(FlatLooks, tintsOfTheExpectationAreTheWorkedExamples)
{
    EXPECT_EQ(kit::tint(0xD8E9EC, 0xC56A31, true), 0xDEB296U);
    EXPECT_EQ(kit::tint(0xD8E9EC, 0xC56A31, false), 0xDAC7B7U);
    EXPECT_EQ(kit::tint(0xC8D0D4, 0x6A240A, true), 0xAF8C80U);
    EXPECT_EQ(kit::tint(0xC8D0D4, 0x6A240A, false), 0xB6A59FU);
    EXPECT_EQ(kit::tint(0xFFFFFF, 0x000000, true), 0x808080U);
    EXPECT_EQ(kit::tint(0xFFFFFF, 0x000000, false), 0xB2B2B2U);
    EXPECT_EQ(kit::tint(0x000000, 0xFFFFFF, true), 0xE4E4E4U);
    EXPECT_EQ(kit::tint(0x000000, 0xFFFFFF, false), 0x808080U);
}

TEST_F(FlatLooks, borderStyle0HasNoBorderOfAnyWidthAndTheCaptionAtItsIndent)
{
    button.setColors();
    button.setCaption(L"&Bare");
    EXPECT_EQ(button->put_BorderStyle(pdsButtonBorderStyleConstants::None), S_OK);
    button.setWidth(5);
    Look look = withBorder(5, lookOf(kFore, kBack, kBorder, L"&Bare"));
    look.bordered = false;
    expect(look);
    EXPECT_EQ(captionPlace(look, button.size(), *button.font().get()).x, 4);
}

TEST_F(FlatLooks, borderStyle0WithTheFocusHasTheFrameAloneTwoPixelsFromTheEdge)
{
    button.setCaption(L"&Bare");
    EXPECT_EQ(button->put_BorderStyle(pdsButtonBorderStyleConstants::None), S_OK);
    ASSERT_TRUE(kit::focus(button.window()));
    ASSERT_EQ(button->Refresh(), S_OK);
    Look look = normalLook(L"&Bare");
    look.bordered = false;
    look.frame = 0x808080;
    expect(look);
}

TEST_F(FlatLooks, anUnknownBorderStyleDrawsNoBorder)
{
    EXPECT_EQ(button->put_BorderStyle(static_cast<pdsButtonBorderStyleConstants>(2)), S_OK);
    Look look = normalLook();
    look.bordered = false;
    expect(look);
}

TEST_F(FlatLooks, aColourThatCannotBeTranslatedIsUsedAsStored)
{
    // The high byte is that of no kind of colour.
    EXPECT_EQ(button->put_BackColor(0x42123456), S_OK);
    EXPECT_EQ(kit::Canvas(button.window()).at(60, 20), 0x123456U);
}

TEST_F(FlatLooks, atDesignTimeAHotStateNeverShows)
{
    button.makeHot();
    expect(hotLook());
    button.setUserMode(false);
    expectDrawn(normalLook());
    expectRefreshed(normalLook());
}

TEST_F(FlatLooks, atDesignTimeADisabledControlIsDrawnDisabled)
{
    button.setCaption(L"&Off");
    EXPECT_EQ(button->put_Enabled(VARIANT_FALSE), S_OK);
    button.site().setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofBool(false));
    expectDrawn(disabledLook(L"&Off"));
}

TEST_F(FlatLooks, aDesignTimePaintSetsTheNormalState)
{
    button.setCaption(L"&Off");
    EXPECT_EQ(button->put_Enabled(VARIANT_FALSE), S_OK);
    button.setUserMode(false);
    expectRefreshed(normalLook(L"&Off"));
}

} // namespace
} // namespace quillet::flat

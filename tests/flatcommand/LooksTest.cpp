// The looks of qvFlatCommand, pixel by pixel.
#include "FlatButton.h"
#include "kit/Input.h"
#include "kit/Pump.h"

namespace quillet::flat {
namespace {

class FlatLooks : public FlatTest {
protected:
    kit::FakeForm form;
};

TEST_F(FlatLooks, normalShowsForeBackAndBorderColourAndTheCaptionAtItsIndent)
{
    ShownButton button(library(), form);
    Look look = normalLook();
    EXPECT_EQ(button.differencesFrom(look), "");
    button.setCaption(L"Plain");
    look.caption = L"Plain";
    EXPECT_EQ(button.differencesFrom(look), "");
    button.setColors();
    look = {kFore, kBack, kBorder};
    look.caption = L"Plain";
    EXPECT_EQ(button.differencesFrom(look), "");
}

TEST_F(FlatLooks, hotShowsTheHotColoursAndWidth)
{
    ShownButton button(library(), form);
    button.setCaption(L"&Hot");
    EXPECT_EQ(button->put_HotBorderWidth(Variant::ofShort(4).get()), S_OK);
    button.makeHot();
    Look look = hotLook();
    look.caption = L"&Hot";
    look.borderWidth = 4;
    EXPECT_EQ(button.differencesFrom(look), "");
    button->put_HotForeColor(RGB(1, 1, 1));
    button->put_HotBackColor(RGB(200, 200, 1));
    button->put_HotBorderColor(RGB(3, 200, 3));
    ASSERT_EQ(button->Refresh(), S_OK);
    look.fore = RGB(1, 1, 1);
    look.back = RGB(200, 200, 1);
    look.border = RGB(3, 200, 3);
    EXPECT_EQ(button.differencesFrom(look), "");
    button.leave();
    Look normal = normalLook();
    normal.caption = L"&Hot";
    EXPECT_EQ(button.differencesFrom(normal), "");
}

// Put under the cursor and away again, with no message in between: only painting finds out.
TEST_F(FlatLooks, drawButtonDrawsTheStateThatTheLastPaintingFound)
{
    ShownButton button(library(), form);
    ASSERT_TRUE(kit::moveCursorTo(form.window(), 80, 200));
    kit::pumpPending();
    auto const moveTo = [&](RECT const& place) {
        EXPECT_EQ(button.as<IOleInPlaceObject>()->SetObjectRects(&place, &place), S_OK);
    };
    moveTo({20, 180, 140, 220});
    EXPECT_EQ(button->DrawButton(), S_OK);
    EXPECT_EQ(button.differencesFrom(normalLook()), "");
    EXPECT_EQ(button->Refresh(), S_OK);
    EXPECT_EQ(button.differencesFrom(hotLook()), "");
    moveTo(kPlace);
    EXPECT_EQ(button->DrawButton(), S_OK);
    EXPECT_EQ(button.differencesFrom(hotLook()), "");
    EXPECT_EQ(button->Refresh(), S_OK);
    EXPECT_EQ(button.differencesFrom(normalLook()), "");
}

TEST_F(FlatLooks, pressedShowsThePressedColoursAndWidth)
{
    ShownButton button(library(), form);
    button.setCaption(L"&Press");
    EXPECT_EQ(button->put_ShowFocusRectangle(VARIANT_FALSE), S_OK);
    EXPECT_EQ(button->put_PressedBorderWidth(Variant::ofShort(3).get()), S_OK);
    EXPECT_EQ(button->put_PressedForeColor(RGB(1, 200, 1)), S_OK);
    EXPECT_EQ(button->put_PressedBorderColor(RGB(200, 3, 3)), S_OK);
    button.makePressed();
    Look look = pressedLook();
    look.caption = L"&Press";
    look.fore = RGB(1, 200, 1);
    look.border = RGB(200, 3, 3);
    look.borderWidth = 3;
    look.emphasis = 1; // the press gave it the focus
    EXPECT_EQ(button.differencesFrom(look), "");
    EXPECT_EQ(button->put_PressedBackColor(RGB(5, 55, 155)), S_OK);
    ASSERT_EQ(button->Refresh(), S_OK);
    look.back = RGB(5, 55, 155);
    EXPECT_EQ(button.differencesFrom(look), "");
    button.leave();
    Look normal = normalLook();
    normal.caption = L"&Press";
    normal.emphasis = 1;
    EXPECT_EQ(button.differencesFrom(normal), "");
}

TEST_F(FlatLooks, taskPanePressedIsTheDeepBlendWithASelectionBorderAndNoEmphasis)
{
    ShownButton button(library(), form);
    button.setCaption(L"T&ask");
    EXPECT_EQ(button->put_OfficeXPColors(VARIANT_TRUE), S_OK);
    EXPECT_EQ(button->put_PressedBorderWidth(Variant::ofShort(2).get()), S_OK);
    button.makePressed();
    Look look = taskPanePressedLook();
    look.caption = L"T&ask";
    look.borderWidth = 2;
    look.frame = look.back == 0x808080 ? 0xE0E0E0 : 0x808080;
    EXPECT_EQ(button.differencesFrom(look), "");
    button.leave();
}

TEST_F(FlatLooks, atDesignTimeAPressedStateNeverShows)
{
    ShownButton button(library(), form);
    EXPECT_EQ(button->put_ShowFocusRectangle(VARIANT_FALSE), S_OK);
    button.makePressed();
    button.site().setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofBool(false));
    ASSERT_EQ(button.as<IOleControl>()->OnAmbientPropertyChange(DISPID_AMBIENT_USERMODE), S_OK);
    ASSERT_EQ(button->DrawButton(), S_OK);
    Look look = normalLook();
    look.emphasis = 1;
    EXPECT_EQ(button.differencesFrom(look), "");
    button.site().setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofBool(true));
    ASSERT_EQ(button.as<IOleControl>()->OnAmbientPropertyChange(DISPID_AMBIENT_USERMODE), S_OK);
    button.leave();
}

TEST_F(FlatLooks, hotBackColorSetAtRestChangesNothingUntilTheMouseEnters)
{
    ShownButton button(library(), form);
    EXPECT_EQ(button->put_HotBackColor(RGB(9, 99, 199)), S_OK);
    kit::pumpPending();
    EXPECT_EQ(button.differencesFrom(normalLook()), "");
    ASSERT_EQ(button->Refresh(), S_OK);
    EXPECT_EQ(button.differencesFrom(normalLook()), "");
    button.makeHot();
    Look look = hotLook();
    look.back = RGB(9, 99, 199);
    EXPECT_EQ(button.differencesFrom(look), "");
    button.leave();
}

TEST_F(FlatLooks, disabledDiffersFromNormalByItsCaptionColourAlone)
{
    ShownButton button(library(), form);
    button.setCaption(L"&Off");
    button.setColors();
    button.setWidth(2);
    EXPECT_EQ(button->put_Enabled(VARIANT_FALSE), S_OK);
    Look look{::GetSysColor(COLOR_GRAYTEXT), kBack, kBorder};
    look.caption = L"&Off";
    look.borderWidth = 2;
    EXPECT_EQ(button.differencesFrom(look), "");
    EXPECT_EQ(button->put_DisabledForeColor(RGB(250, 1, 2)), S_OK);
    look.fore = RGB(250, 1, 2);
    EXPECT_EQ(button.differencesFrom(look), "");
    EXPECT_EQ(button->put_Enabled(VARIANT_TRUE), S_OK);
    look.fore = kFore;
    EXPECT_EQ(button.differencesFrom(look), "");
}

TEST_F(FlatLooks, disabledStaysDisabledUnderTheCursor)
{
    ShownButton button(library(), form);
    EXPECT_EQ(button->put_Enabled(VARIANT_FALSE), S_OK);
    button.makeHot();
    EXPECT_EQ(button.differencesFrom(disabledLook()), "");
    button.leave();
}

TEST_F(FlatLooks, taskPaneAtRestIsTextOnFaceInShadowWhateverTheColourProperties)
{
    ShownButton button(library(), form);
    button.setColors();
    button.setWidth(2);
    button.setCaption(L"T&ask");
    EXPECT_EQ(button->put_OfficeXPColors(VARIANT_TRUE), S_OK);
    Look look = taskPaneNormalLook();
    look.caption = L"T&ask";
    look.borderWidth = 2;
    EXPECT_EQ(button.differencesFrom(look), "");
}

TEST_F(FlatLooks, taskPaneHotIsABlendWithASelectionBorder)
{
    ShownButton button(library(), form);
    button.setColors();
    button.setCaption(L"T&ask");
    EXPECT_EQ(button->put_OfficeXPColors(VARIANT_TRUE), S_OK);
    EXPECT_EQ(button->put_HotBorderWidth(Variant::ofShort(2).get()), S_OK);
    button.makeHot();
    Look look = taskPaneHotLook();
    look.caption = L"T&ask";
    look.borderWidth = 2;
    EXPECT_EQ(button.differencesFrom(look), "");
    button.leave();
}

TEST_F(FlatLooks, taskPaneDisabledIsShadowOnFaceInShadow)
{
    ShownButton button(library(), form);
    button.setColors();
    button.setCaption(L"T&ask");
    EXPECT_EQ(button->put_OfficeXPColors(VARIANT_TRUE), S_OK);
    EXPECT_EQ(button->put_Enabled(VARIANT_FALSE), S_OK);
    Look look = taskPaneDisabledLook();
    look.caption = L"T&ask";
    EXPECT_EQ(button.differencesFrom(look), "");
}

// The worked examples of the blend, so that the expectation above is itself checked.
TEST_F(FlatLooks, tintsOfTheExpectationAreTheWorkedExamples)
{
    EXPECT_EQ(tint(0xD8E9EC, 0xC56A31, true), 0xDEB296U);
    EXPECT_EQ(tint(0xD8E9EC, 0xC56A31, false), 0xDAC7B7U);
    EXPECT_EQ(tint(0xC8D0D4, 0x6A240A, true), 0xAF8C80U);
    EXPECT_EQ(tint(0xC8D0D4, 0x6A240A, false), 0xB6A59FU);
    EXPECT_EQ(tint(0xFFFFFF, 0x000000, true), 0x808080U);
    EXPECT_EQ(tint(0xFFFFFF, 0x000000, false), 0xB2B2B2U);
    EXPECT_EQ(tint(0x000000, 0xFFFFFF, true), 0xE4E4E4U);
    EXPECT_EQ(tint(0x000000, 0xFFFFFF, false), 0x808080U);
}

TEST_F(FlatLooks, borderStyle0HasNoBorderOfAnyWidthAndTheCaptionAtItsIndent)
{
    ShownButton button(library(), form);
    button.setColors();
    button.setCaption(L"&Bare");
    EXPECT_EQ(button->put_BorderStyle(pdsButtonBorderStyleConstants::None), S_OK);
    button.setWidth(5);
    Look look{kFore, kBack, kBorder};
    look.caption = L"&Bare";
    look.bordered = false;
    look.borderWidth = 5;
    EXPECT_EQ(button.differencesFrom(look), "");
    EXPECT_EQ(captionPlace(look, button.size(), *button.font().get()).x, 4);
}

TEST_F(FlatLooks, borderStyle0WithTheFocusHasTheFrameAloneTwoPixelsFromTheEdge)
{
    ShownButton button(library(), form);
    button.setCaption(L"&Bare");
    EXPECT_EQ(button->put_BorderStyle(pdsButtonBorderStyleConstants::None), S_OK);
    ASSERT_TRUE(kit::focus(button.window()));
    ASSERT_EQ(button->Refresh(), S_OK);
    Look look = normalLook();
    look.caption = L"&Bare";
    look.bordered = false;
    look.frame = 0x808080;
    EXPECT_EQ(button.differencesFrom(look), "");
}

TEST_F(FlatLooks, anUnknownBorderStyleDrawsNoBorder)
{
    ShownButton button(library(), form);
    EXPECT_EQ(button->put_BorderStyle(static_cast<pdsButtonBorderStyleConstants>(2)), S_OK);
    Look look = normalLook();
    look.bordered = false;
    EXPECT_EQ(button.differencesFrom(look), "");
}

TEST_F(FlatLooks, aColourThatCannotBeTranslatedIsUsedAsStored)
{
    ShownButton button(library(), form);
    // The high byte is that of no kind of colour.
    EXPECT_EQ(button->put_BackColor(0x42123456), S_OK);
    kit::Canvas shown(button.size().cx, button.size().cy);
    button.read(shown);
    EXPECT_EQ(shown.at(60, 20), 0x123456U);
}

TEST_F(FlatLooks, atDesignTimeAHotStateNeverShows)
{
    ShownButton button(library(), form);
    button.makeHot();
    ASSERT_EQ(button.differencesFrom(hotLook()), "");
    button.site().setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofBool(false));
    ASSERT_EQ(button.as<IOleControl>()->OnAmbientPropertyChange(DISPID_AMBIENT_USERMODE), S_OK);
    ASSERT_EQ(button->DrawButton(), S_OK);
    EXPECT_EQ(button.differencesFrom(normalLook()), "");
    ASSERT_EQ(button->Refresh(), S_OK);
    EXPECT_EQ(button.differencesFrom(normalLook()), "");
    button.leave();
}

TEST_F(FlatLooks, atDesignTimeADisabledControlIsDrawnDisabled)
{
    ShownButton button(library(), form);
    button.setCaption(L"&Off");
    EXPECT_EQ(button->put_Enabled(VARIANT_FALSE), S_OK);
    button.site().setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofBool(false));
    ASSERT_EQ(button->DrawButton(), S_OK);
    Look look = disabledLook();
    look.caption = L"&Off";
    EXPECT_EQ(button.differencesFrom(look), "");
}

TEST_F(FlatLooks, aDesignTimePaintSetsTheNormalState)
{
    ShownButton button(library(), form);
    button.setCaption(L"&Off");
    EXPECT_EQ(button->put_Enabled(VARIANT_FALSE), S_OK);
    button.site().setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofBool(false));
    ASSERT_EQ(button.as<IOleControl>()->OnAmbientPropertyChange(DISPID_AMBIENT_USERMODE), S_OK);
    ASSERT_EQ(button->Refresh(), S_OK);
    Look look = normalLook();
    look.caption = L"&Off";
    EXPECT_EQ(button.differencesFrom(look), "");
}

} // namespace
} // namespace quillet::flat

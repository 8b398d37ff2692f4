// The looks of both classes, pixel by pixel, in the user's colours and in the task-pane scheme.
#include "Look.h"
#include "kit/HostWindow.h"

namespace quillet::image {
namespace {

// A colour of its own for every property.
constexpr COLORREF kHotFore = RGB(3, 103, 203), kHotBack = RGB(230, 235, 180);
constexpr COLORREF kHotLight = RGB(4, 104, 204), kHotDark = RGB(5, 105, 205);
constexpr COLORREF kPressedFore = RGB(6, 106, 206), kPressedBack = RGB(180, 235, 230);
constexpr COLORREF kPressedLight = RGB(7, 107, 207), kPressedDark = RGB(8, 108, 208);
constexpr COLORREF kDisabledFore = RGB(9, 109, 209);
constexpr COLORREF kCheckedBack = RGB(235, 180, 230), kCheckedLight = RGB(11, 111, 211);
constexpr COLORREF kCheckedDark = RGB(12, 112, 212);
constexpr COLORREF kUnused = RGB(255, 0, 0);

COLORREF desktop(int index) { return ::GetSysColor(index); }

class ImageLooks : public LoadedTest {
protected:
    UniqueWindow edit = kit::newEditBox(form.window(), {200, 30, 300, 60});

    ImageLooks()
    {
        EXPECT_EQ(button->put_OffsetPressed(VARIANT_FALSE), S_OK);
        button.setCaption(L"&Look");
    }
    void setColors()
    {
        image::setColors(button);
        button->put_HotForeColor(kHotFore);
        button->put_HotBackColor(kHotBack);
        button->put_HotLightBorderColor(kHotLight);
        button->put_HotDarkBorderColor(kHotDark);
        button->put_PressedForeColor(kPressedFore);
        button->put_PressedBackColor(kPressedBack);
        button->put_PressedLightBorderColor(kPressedLight);
        button->put_PressedDarkBorderColor(kPressedDark);
        button->put_DisabledForeColor(kDisabledFore);
        button->put_CheckedBackColor(kCheckedBack);
        button->put_CheckedLightBorderColor(kCheckedLight);
        button->put_CheckedDarkBorderColor(kCheckedDark);
        // None of these is ever drawn.
        button->put_CheckedForeColor(kUnused);
        button->put_DisabledLightBorderColor(kUnused);
        button->put_DisabledDarkBorderColor(kUnused);
    }
    void setWidths(short normal, short hot, short pressed)
    {
        EXPECT_EQ(button->put_BorderWidth(Variant::ofShort(normal).get()), S_OK);
        EXPECT_EQ(button->put_HotBorderWidth(Variant::ofShort(hot).get()), S_OK);
        EXPECT_EQ(button->put_PressedBorderWidth(Variant::ofShort(pressed).get()), S_OK);
        button.repaint();
    }
    /// Disabled after the focus has gone.
    void disable()
    {
        ASSERT_TRUE(kit::focus(edit.get()));
        ASSERT_EQ(button->put_Enabled(VARIANT_FALSE), S_OK);
    }
    static Look look(COLORREF fore, COLORREF back, COLORREF light, COLORREF dark, int border = 1)
    {
        return lookOf(fore, back, light, dark, border, L"&Look");
    }
    static Look desktopLook(int fore, int back, int light, int dark)
    {
        return look(desktop(fore), desktop(back), desktop(light), desktop(dark));
    }
    void expect(Look const& expected) { EXPECT_EQ(differencesFrom(button, expected), ""); }
    /// With the picture at the left, a caption beside it.
    static Look withImage(Look look)
    {
        look.shown = Shown{kImage, 5, middle(40, kImage.height)};
        look.captionLeft = 5 + kImage.width + 1;
        return look;
    }
    /// Pressed, the button has the focus: its border is one pixel wider and its caption stands further in.
    static Look focused(Look look)
    {
        ++look.border;
        ++look.captionLeft;
        return look;
    }
};
QV_BOTH_CLASSES(ImageLooks);

TEST_P(ImageLooks, ofANewButtonAreThoseOfItsClass)
{
    bool const tool = kind().isTool;
    int const edge = tool ? COLOR_3DLIGHT : COLOR_3DDKSHADOW;
    expect(desktopLook(COLOR_BTNTEXT, COLOR_BTNFACE, edge, edge));
    button.makeHot();
    expect(tool ? desktopLook(COLOR_HIGHLIGHT, COLOR_BTNFACE, COLOR_BTNHIGHLIGHT, COLOR_BTNSHADOW)
                : desktopLook(COLOR_BTNHIGHLIGHT, COLOR_BTNSHADOW, COLOR_3DDKSHADOW, COLOR_3DDKSHADOW));
    button.makePressed();
    expect(focused(
        tool ? desktopLook(COLOR_BTNHIGHLIGHT, COLOR_3DLIGHT, COLOR_BTNHIGHLIGHT, COLOR_BTNSHADOW)
             : desktopLook(COLOR_BTNHIGHLIGHT, COLOR_3DDKSHADOW, COLOR_3DDKSHADOW, COLOR_3DDKSHADOW)));
    button.leave();
    disable();
    expect(desktopLook(COLOR_GRAYTEXT, COLOR_BTNFACE, edge, edge));
}

TEST_P(ImageLooks, takeEachItsOwnColoursAndWidth)
{
    setColors();
    setWidths(2, 3, 4);
    expect(look(kFore, kBack, kLight, kDark, 2));
    button.makeHot();
    expect(look(kHotFore, kHotBack, kHotLight, kHotDark, 3));
    button.makePressed();
    expect(focused(look(kPressedFore, kPressedBack, kPressedLight, kPressedDark, 4)));
    button.leave();
    disable();
    expect(look(kDisabledFore, kBack, kLight, kDark, 2));
    button.makeHot();
    expect(look(kDisabledFore, kBack, kLight, kDark, 2));
}

TEST_P(ImageLooks, checkedTakeTheCheckedBordersAndAtRestTheCheckedLook)
{
    setColors();
    button.check();
    expect(look(kFore, kCheckedBack, kCheckedLight, kCheckedDark));
    button.makeHot();
    expect(look(kHotFore, kHotBack, kCheckedLight, kCheckedDark));
    button.makePressed();
    expect(focused(look(kPressedFore, kPressedBack, kCheckedLight, kCheckedDark)));
    button.leave(); // released over it: not checked any more
    ASSERT_FALSE(button.isChecked());
    expect(focused(look(kFore, kBack, kLight, kDark)));
    ASSERT_EQ(button->put_Checked(VARIANT_TRUE), S_OK);
    disable();
    expect(look(kDisabledFore, kBack, kCheckedLight, kCheckedDark));
}

TEST_P(ImageLooks, needBothFlagsToBeChecked)
{
    setColors();
    ASSERT_EQ(button->put_Checked(VARIANT_TRUE), S_OK);
    expect(look(kFore, kBack, kLight, kDark));
    ASSERT_EQ(button->put_Checked(VARIANT_FALSE), S_OK);
    button.makeCheckButton();
    expect(look(kFore, kBack, kLight, kDark));
}

TEST_P(ImageLooks, ofATaskPaneButtonAreTheDesktopsWhateverItsColours)
{
    setColors();
    setWidths(2, 3, 1);
    ASSERT_EQ(button->put_OfficeXPColors(VARIANT_TRUE), S_OK);
    COLORREF const selection = desktop(COLOR_HIGHLIGHT);
    // A resting tool button shows no border at all at run time.
    COLORREF const resting = kind().isTool ? desktop(COLOR_BTNFACE) : desktop(COLOR_BTNSHADOW);
    expect(look(desktop(COLOR_BTNTEXT), desktop(COLOR_BTNFACE), resting, resting, 2));
    button.makeHot();
    expect(look(desktop(COLOR_BTNTEXT), taskPaneTint(false), selection, selection, 3));
    button.makePressed();
    expect(focused(look(desktop(COLOR_BTNHIGHLIGHT), taskPaneTint(true), selection, selection)));
    button.leave();
    disable();
    expect(look(desktop(COLOR_BTNSHADOW), desktop(COLOR_BTNFACE), desktop(COLOR_BTNSHADOW),
                desktop(COLOR_BTNSHADOW), 2));
}

TEST_P(ImageLooks, ofARestingTaskPaneToolButtonHaveABorderInItsBackColour)
{
    ASSERT_EQ(button->put_OfficeXPColors(VARIANT_TRUE), S_OK);
    ASSERT_EQ(button->put_BackColor(kBack), S_OK);
    COLORREF const edge = kind().isTool ? kBack : desktop(COLOR_BTNSHADOW);
    expect(look(desktop(COLOR_BTNTEXT), desktop(COLOR_BTNFACE), edge, edge));
}

TEST_P(ImageLooks, ofADesignedTaskPaneToolButtonHaveAnOutline)
{
    ASSERT_EQ(button->put_OfficeXPColors(VARIANT_TRUE), S_OK);
    button.setUserMode(false);
    button.repaint();
    COLORREF const edge = kind().isTool ? desktop(COLOR_HIGHLIGHT) : desktop(COLOR_BTNSHADOW);
    expect(look(desktop(COLOR_BTNTEXT), desktop(COLOR_BTNFACE), edge, edge));
}

TEST_P(ImageLooks, ofACheckedTaskPaneButtonAreTintedAtRestAndSelectedAlways)
{
    button.check();
    ASSERT_EQ(button->put_OfficeXPColors(VARIANT_TRUE), S_OK);
    COLORREF const selection = desktop(COLOR_HIGHLIGHT);
    expect(look(desktop(COLOR_BTNTEXT), taskPaneTint(false), selection, selection));
    button.makeHot();
    expect(look(desktop(COLOR_BTNTEXT), taskPaneTint(false), selection, selection));
    button.makePressed();
    expect(focused(look(desktop(COLOR_BTNHIGHLIGHT), taskPaneTint(true), selection, selection)));
    button.leave(); // released over it: not checked any more
    ASSERT_EQ(button->put_Checked(VARIANT_TRUE), S_OK);
    disable();
    expect(look(desktop(COLOR_BTNSHADOW), desktop(COLOR_BTNFACE), selection, selection));
}

TEST_P(ImageLooks, withoutABorderKeepItsWidthForTheCaption)
{
    setColors();
    setWidths(5, 7, 1);
    ASSERT_EQ(button->put_BorderStyle(imgCmdBorderStyleConstants::None), S_OK);
    Look bare = look(kFore, kBack, kLight, kDark, 0);
    bare.captionLeft = 5 + 4;
    expect(bare);
    button.makeHot();
    bare = look(kHotFore, kHotBack, kHotLight, kHotDark, 0);
    bare.captionLeft = 7 + 4;
    expect(bare);
}

TEST_P(ImageLooks, ofASunkenStyleHaveNoBorder)
{
    setColors();
    ASSERT_EQ(button->put_BorderStyle(imgCmdBorderStyleConstants::Sunken), S_OK);
    Look bare = look(kFore, kBack, kLight, kDark, 0);
    bare.captionLeft = 1 + 4;
    expect(bare);
}

TEST_P(ImageLooks, startTheCaptionAtItsIndentOrCentreIt)
{
    setColors();
    for (short const indent : std::initializer_list<short>{0, 30, -3}) {
        ASSERT_EQ(button->put_CaptionIndent(indent), S_OK);
        Look expected = look(kFore, kBack, kLight, kDark);
        expected.captionLeft = 1 + indent;
        expect(expected);
    }
    ASSERT_EQ(button->put_CentreCaption(VARIANT_TRUE), S_OK);
    for (wchar_t const* const text : {L"Ce&ntre", L"i", L"&mm", L"And && and", L""}) {
        button.setCaption(text);
        Look expected = look(kFore, kBack, kLight, kDark);
        expected.caption = text;
        expected.centred = true;
        expect(expected);
    }
}

TEST_P(ImageLooks, cutACaptionThatIsTooLongAtTheBorder)
{
    setColors();
    setWidths(3, 1, 1);
    button.setCaption(L"A rather &long caption that goes on and on");
    Look expected = look(kFore, kBack, kLight, kDark, 3);
    expected.caption = button.caption();
    expect(expected);
}

TEST_P(ImageLooks, ofABorderBeyondTheButtonAreThoseOfItsRingsThatCanBeSeen)
{
    setColors();
    setWidths(static_cast<short>(button.size().cx + 1), 1, 1);
    kit::Canvas const all(button.window());
    setWidths(32767, 1, 1);
    EXPECT_EQ(kit::differences(all, kit::Canvas(button.window())), "");
    EXPECT_EQ(all.count(kBack), 0);
}

TEST_P(ImageLooks, doNotChangeWithPropertiesThatAreOnlyStored)
{
    setColors();
    button.check();
    Look const before = look(kFore, kCheckedBack, kCheckedLight, kCheckedDark);
    expect(before);
    for (wchar_t const* const name :
         {L"CheckedForeColor", L"DisabledDarkBorderColor", L"DisabledLightBorderColor"}) {
        ASSERT_EQ(kit::putByName(*button.dual(), name, Variant::ofLong(RGB(0, 255, 0))).result, S_OK);
        button.repaint();
        expect(before);
    }
    for (VARIANT_BOOL const value : {VARIANT_FALSE, VARIANT_TRUE}) {
        ASSERT_EQ(button->put_ShowFocusRectangle(value), S_OK);
        ASSERT_TRUE(kit::focus(button.window()));
        button.repaint();
        expect(focused(before));
        ASSERT_TRUE(kit::focus(edit.get()));
    }
}

TEST_P(ImageLooks, ofHotAndPressedPropertiesWaitForTheirState)
{
    setColors();
    Look const resting = look(kFore, kBack, kLight, kDark);
    button->put_HotBackColor(RGB(9, 99, 199));
    button.repaint();
    expect(resting);
    button.makeHot();
    expect(look(kHotFore, RGB(9, 99, 199), kHotLight, kHotDark));
}

TEST_P(ImageLooks, doNotGoByTheFontForCheckedButtons)
{
    setColors();
    button.check();
    button.setCheckedFont(kit::newFont(L"Tahoma", 20, true).get());
    button.repaint();
    expect(look(kFore, kCheckedBack, kCheckedLight, kCheckedDark));
}

TEST_P(ImageLooks, whileNotActiveAreTheNormalOneUnderTheCursorAndDisabled)
{
    setColors();
    ASSERT_EQ(button->put_Active(VARIANT_FALSE), S_OK);
    button.makeHot();
    expect(look(kFore, kBack, kLight, kDark));
    ASSERT_EQ(button->put_Enabled(VARIANT_FALSE), S_OK);
    expect(look(kFore, kBack, kLight, kDark));
}

TEST_P(ImageLooks, ofAPressedButtonThatIsDisabledAndEnabledAgainAreNotPressed)
{
    setColors();
    button.makePressed();
    EXPECT_EQ(pixelAt(button, 60, 36), kPressedBack);
    ASSERT_EQ(button->put_Enabled(VARIANT_FALSE), S_OK);
    EXPECT_EQ(pixelAt(button, 60, 36), kBack);
    ASSERT_EQ(button->put_Enabled(VARIANT_TRUE), S_OK);
    EXPECT_EQ(pixelAt(button, 60, 36), kHotBack);
    button.leave();
}

TEST_P(ImageLooks, areDecidedByAPaintAndNotByTheHostsCallOfDrawButton)
{
    setColors();
    button.makeHot();
    ::SetCursorPos(0, 0); // the message of the move waits
    ASSERT_EQ(button->DrawButton(), S_OK);
    expect(look(kHotFore, kHotBack, kHotLight, kHotDark));
    ASSERT_EQ(button->put_LightBorderColor(kLight), S_OK);
    expect(look(kFore, kBack, kLight, kDark));
}

TEST_P(ImageLooks, areCompleteWhenThePaintIsTold)
{
    setColors();
    ASSERT_EQ(button->putref_Image(pictureOf(kImage).get()), S_OK);
    std::string found = "no event";
    kit::Inside const any(button, "", [&] {
        found = differencesFrom(button, withImage(look(kFore, RGB(7, 8, 9), kLight, kDark)));
    });
    ASSERT_EQ(button->put_BackColor(RGB(7, 8, 9)), S_OK);
    EXPECT_EQ(found, "");
}

TEST_P(ImageLooks, areTheSameInAViewOfTheControl)
{
    setColors();
    ASSERT_EQ(button->putref_Image(pictureOf(kImage).get()), S_OK);
    kit::Canvas shown(button.size().cx, button.size().cy);
    button.draw(shown);
    kit::Canvas expected(shown.width(), shown.height());
    paint(expected, withImage(look(kFore, kBack, kLight, kDark)), *button.font().get());
    EXPECT_EQ(kit::differences(expected, shown), "");
}

// The worked examples of the blend, so that the expectation above is itself checked.
TEST(ImageTint, mixesTheDesktopsOwnColours)
{
    EXPECT_NE(taskPaneTint(true), taskPaneTint(false));
    EXPECT_NE(taskPaneTint(false), ::GetSysColor(COLOR_BTNFACE));
}

} // namespace
} // namespace quillet::image

// The properties of both classes: their initial values, and what assigning each of them does.
#include "Look.h"
#include "Pictures.h"
#include "SavedRows.h"
#include "kit/ByName.h"
#include "kit/Errors.h"
#include "kit/Fonts.h"
#include "kit/Pump.h"

namespace quillet::image {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

enum Effect { kNothing = 0, kRepaints = 1, kMeasures = 3 }; // what measures repaints, too

struct EffectRow {
    wchar_t const* name;
    Effect effect;
};

constexpr EffectRow kEffects[] = {
    {L"BackColor", kRepaints},
    {L"ForeColor", kRepaints},
    {L"Enabled", kRepaints},
    {L"BorderStyle", kMeasures},
    {L"LightBorderColor", kRepaints},
    {L"HotForeColor", kNothing},
    {L"PressedForeColor", kNothing},
    {L"HotBackColor", kNothing},
    {L"PressedBackColor", kNothing},
    {L"HotLightBorderColor", kNothing},
    {L"PressedLightBorderColor", kNothing},
    {L"BorderWidth", kMeasures},
    {L"HotBorderWidth", kNothing},
    {L"PressedBorderWidth", kMeasures},
    {L"DisabledForeColor", kRepaints},
    {L"Caption", kMeasures},
    {L"CentreCaption", kRepaints},
    {L"CaptionIndent", kRepaints},
    {L"MousePointer", kNothing},
    {L"ShowFocusRectangle", kRepaints},
    {L"DarkBorderColor", kRepaints},
    {L"HotDarkBorderColor", kRepaints},
    {L"DisabledDarkBorderColor", kRepaints},
    {L"PressedDarkBorderColor", kRepaints},
    {L"DisabledLightBorderColor", kRepaints},
    {L"CheckButton", kRepaints},
    {L"Checked", kRepaints},
    {L"CheckedForeColor", kNothing},
    {L"CheckedBackColor", kNothing},
    {L"CheckedDarkBorderColor", kNothing},
    {L"CheckedLightBorderColor", kNothing},
    {L"Active", kNothing},
    {L"OffsetPressed", kNothing},
    {L"OfficeXPColors", kRepaints},
};

class ImageProperties : public ImageTest {
protected:
    /// A shown button whose width follows its content.
    void start(ImageButton& button)
    {
        button.load();
        ASSERT_EQ(button->put_AutoSizeWidth(VARIANT_TRUE), S_OK);
        button.forget();
    }
    static void expectEffect(ImageButton& button, wchar_t const* name, Effect effect)
    {
        EXPECT_EQ(button.paints(), effect & kRepaints ? 1 : 0) << kit::narrow(name);
        EXPECT_EQ(button.widths(), effect == kMeasures ? 1 : 0) << kit::narrow(name);
        EXPECT_EQ(button.events().ids().size(), effect & kRepaints ? 1U : 0U)
            << kit::narrow(name) << " raised something else than Paint";
        EXPECT_THAT(button.changes().take(), ElementsAre(kit::idOf(*button.dual(), name)))
            << kit::narrow(name);
    }
    static void expectObjectEffect(ImageButton& button, wchar_t const* name, IUnknown* object, Effect effect)
    {
        button.forget();
        EXPECT_EQ(kit::setByName(*button.dual(), name, object).result, S_OK) << kit::narrow(name);
        expectEffect(button, name, effect);
    }
    void expectDefaults(ImageButton const& button)
    {
        for (SavedRow const& row : savedRows())
            if (row.type != VT_UNKNOWN) {
                EXPECT_EQ(valueOf(button, row.name), textOf(row.defaultOf(kind()))) << kit::narrow(row.name);
            }
    }
};
QV_BOTH_CLASSES(ImageProperties);

TEST_P(ImageProperties, ofANewInstanceHaveTheDefaultsOfItsClass)
{
    ImageButton button(library(), form, kind());
    button.setSite();
    ASSERT_EQ(button.initNew(), S_OK);
    expectDefaults(button);
    EXPECT_EQ(button.caption(), L"") << "an image button does not take its name for a caption";
    EXPECT_EQ(valueOf(button, L"ToolTipText"), "");
    EXPECT_EQ(valueOf(button, L"MouseIcon"), "none");
    EXPECT_TRUE(kit::equalFonts(*button.font().get(), *formFont().get()));
    ComPtr<IFontDisp> checkedFont;
    ASSERT_EQ(button->get_CheckedFont(checkedFont.put()), S_OK);
    ASSERT_TRUE(checkedFont);
    EXPECT_TRUE(kit::equalFonts(*query<IFont>(checkedFont.get()).get(), *formFont().get()));
}

TEST_P(ImageProperties, ofANewInstanceHoldEmptyPictureObjects)
{
    ImageButton button(library(), form, kind());
    button.setSite();
    ASSERT_EQ(button.initNew(), S_OK);
    for (auto const get : {&_qvImageCommand::get_Image, &_qvImageCommand::get_DisabledImage,
                           &_qvImageCommand::get_HotImage, &_qvImageCommand::get_PressedImage}) {
        ComPtr<IPictureDisp> picture;
        ASSERT_EQ((button.dual()->*get)(picture.put()), S_OK);
        ASSERT_TRUE(picture);
        EXPECT_EQ(typeOf(picture.get()), 0);
    }
}

TEST_P(ImageProperties, haveTheirDefaultsAlreadyBeforeAnybodyInitialises)
{
    ImageButton button(library(), form, kind());
    expectDefaults(button);
}

TEST_P(ImageProperties, areSetBackByInitialisingButForThoseOfTheSurface)
{
    ImageButton button(library(), form, kind());
    button.setSite();
    ASSERT_EQ(button.initNew(), S_OK);
    for (SavedRow const& row : savedRows())
        if (row.type != VT_UNKNOWN)
            kit::putByName(*button.dual(), row.name, row.otherThanDefault(kind()));
    ASSERT_EQ(button.initNew(), S_OK);
    for (SavedRow const& row : savedRows()) {
        std::wstring const name = row.name;
        bool const kept =
            name == L"BackColor" || name == L"ForeColor" || name == L"Enabled" || name == L"MousePointer";
        if (row.type == VT_UNKNOWN || name == L"BackColor") // OfficeXPColors has overwritten that one
            continue;
        EXPECT_EQ(valueOf(button, row.name),
                  textOf(kept ? row.otherThanDefault(kind()) : row.defaultOf(kind())))
            << kit::narrow(row.name);
    }
}

TEST_P(ImageProperties, initialisingPaintsOnceAndChangesNothing)
{
    ImageButton button(library(), form, kind());
    ASSERT_EQ(button.setSite(), S_OK);
    button.forget();
    ASSERT_EQ(button.initNew(), S_OK);
    EXPECT_EQ(button.paints(), 1);
    EXPECT_THAT(button.changes().take(), IsEmpty());
}

TEST_P(ImageProperties, initialisingPaintsBeforeThePicturesAreEmptied)
{
    ImageButton button(library(), form, kind());
    ASSERT_EQ(button.setSite(), S_OK);
    ASSERT_EQ(button.initNew(), S_OK);
    ASSERT_EQ(button->putref_Image(pictureOf(kImage).get()), S_OK);
    short type = -2;
    button.events().action = [&](auto const&) {
        ComPtr<IPictureDisp> picture;
        button->get_Image(picture.put());
        type = typeOf(picture.get());
    };
    ASSERT_EQ(button.initNew(), S_OK);
    EXPECT_EQ(type, PICTYPE_BITMAP);
    button.events().action = nullptr;
    EXPECT_EQ(valueOf(button, L"Image"), "none");
}

TEST_P(ImageProperties, initialisingPaintsBetweenTheFocusRectangleAndTheDarkBorders)
{
    ImageButton button(library(), form, kind());
    ASSERT_EQ(button.setSite(), S_OK);
    ASSERT_EQ(button.initNew(), S_OK);
    for (wchar_t const* const name : {L"CaptionIndent", L"DarkBorderColor", L"HotDarkBorderColor"})
        ASSERT_EQ(kit::putByName(*button.dual(), name, Variant::ofLong(99)).result, S_OK);
    VARIANT_BOOL const focusRectangle = kind().isTool ? VARIANT_FALSE : VARIANT_TRUE;
    ASSERT_EQ(button->put_ShowFocusRectangle(static_cast<VARIANT_BOOL>(~focusRectangle)), S_OK);
    ASSERT_EQ(button->put_CheckButton(VARIANT_TRUE), S_OK);
    std::vector<std::string> seen;
    button.events().action = [&](auto const&) {
        for (wchar_t const* const name : {L"CaptionIndent", L"ShowFocusRectangle", L"DarkBorderColor",
                                          L"HotDarkBorderColor", L"CheckButton"})
            seen.push_back(valueOf(button, name));
    };
    ASSERT_EQ(button.initNew(), S_OK);
    button.events().action = nullptr;
    EXPECT_THAT(seen, ElementsAre("4", std::to_string(focusRectangle), "99", "99", "-1"));
}

TEST_P(ImageProperties, tellOfTheChangeThenMeasureAndThenPaint)
{
    ImageButton button(library(), form, kind());
    start(button);
    std::vector<std::string> order;
    button.changes().action = [&](DISPID) { order.push_back("told"); };
    button.events().action = [&](auto const& event) {
        order.push_back(event.id == kPaint ? "painted" : "another event");
    };
    form.record().whenNoted = [&](std::string const& call) {
        if (call.starts_with("Extender.Width = "))
            order.push_back("measured");
    };
    button.setCaption(L"In order");
    form.record().whenNoted = nullptr;
    button.events().action = nullptr;
    button.changes().action = nullptr;
    EXPECT_THAT(order, ElementsAre("told", "measured", "painted"));
}

TEST_P(ImageProperties, whenAssignedStoreTellRepaintAndMeasureAsEachShould)
{
    for (EffectRow const& row : kEffects) {
        ImageButton button(library(), form, kind());
        start(button);
        auto const saved = std::ranges::find_if(
            savedRows(), [&](SavedRow const& each) { return std::wstring(each.name) == row.name; });
        ASSERT_NE(saved, savedRows().end());
        Variant const other = saved->otherThanDefault(kind());
        EXPECT_EQ(kit::putByName(*button.dual(), row.name, other).result, S_OK) << kit::narrow(row.name);
        expectEffect(button, row.name, row.effect);
        std::string const expected = std::wstring(row.name) == L"OfficeXPColors" ? "-1" : textOf(other);
        EXPECT_EQ(valueOf(button, row.name), expected) << kit::narrow(row.name);
    }
}

TEST_P(ImageProperties, thatAreObjectsDoTheSame)
{
    ImageButton button(library(), form, kind());
    start(button);
    expectObjectEffect(button, L"Font", kit::newFont(L"Tahoma", 12).get(), kMeasures);
    expectObjectEffect(button, L"CheckedFont", kit::newFont(L"Tahoma", 14).get(), kNothing);
    expectObjectEffect(button, L"MouseIcon", kit::newIconPicture().get(), kNothing);
    expectObjectEffect(button, L"Image", pictureOf(kImage).get(), kMeasures);
    expectObjectEffect(button, L"DisabledImage", pictureOf(kDisabled).get(), kRepaints);
    expectObjectEffect(button, L"HotImage", pictureOf(kHot).get(), kMeasures);
    expectObjectEffect(button, L"PressedImage", pictureOf(kPressed).get(), kMeasures);
}

TEST_P(ImageProperties, toolTipTextIsStoredToldAndNeverPainted)
{
    ImageButton button(library(), form, kind());
    start(button);
    EXPECT_EQ(button->put_ToolTipText(Bstr(L"Opens a form").get()), S_OK);
    expectEffect(button, L"ToolTipText", kNothing);
    EXPECT_EQ(valueOf(button, L"ToolTipText"), "Opens a form");
}

TEST_P(ImageProperties, autoSizeWidthMeasuresWhenItIsSwitchedOnAndRepaintsEitherWay)
{
    ImageButton button(library(), form, kind());
    button.load();
    button.forget();
    EXPECT_EQ(button->put_AutoSizeWidth(VARIANT_TRUE), S_OK);
    expectEffect(button, L"AutoSizeWidth", kMeasures);
    button.forget();
    EXPECT_EQ(button->put_AutoSizeWidth(VARIANT_FALSE), S_OK);
    expectEffect(button, L"AutoSizeWidth", kRepaints);
}

TEST_P(ImageProperties, measureNothingWhileAutoSizeWidthIsOff)
{
    ImageButton button(library(), form, kind());
    button.load();
    button.forget();
    for (SavedRow const& row : savedRows())
        if (row.type != VT_UNKNOWN && std::wstring(row.name) != L"AutoSizeWidth")
            kit::putByName(*button.dual(), row.name, row.otherThanDefault(kind()));
    EXPECT_EQ(button.widths(), 0);
}

TEST_P(ImageProperties, officeXPColorsOverwritesTheBackColourWhenItIsSwitchedOnAndThenLeavesIt)
{
    ImageButton button(library(), form, kind());
    button.load();
    ASSERT_EQ(button->put_BackColor(0x123456), S_OK);
    ASSERT_EQ(button->put_OfficeXPColors(VARIANT_TRUE), S_OK);
    OLE_COLOR color = 0;
    button->get_BackColor(&color);
    EXPECT_EQ(color, 0x8000000FU);
    ASSERT_EQ(button->put_BackColor(0x654321), S_OK);
    ASSERT_EQ(button->put_OfficeXPColors(VARIANT_FALSE), S_OK);
    button->get_BackColor(&color);
    EXPECT_EQ(color, 0x654321U);
}

TEST_P(ImageProperties, widthsBeyond16BitsOverflowAndChangeNothing)
{
    ImageButton button(library(), form, kind());
    start(button);
    for (wchar_t const* const name : {L"BorderWidth", L"HotBorderWidth", L"PressedBorderWidth"}) {
        ASSERT_EQ(kit::putByName(*button.dual(), name, Variant::ofShort(7)).result, S_OK);
        button.forget();
        kit::Called const put = kit::putByName(*button.dual(), name, Variant::ofLong(40000));
        EXPECT_EQ(put.error(), kOverflow);
        EXPECT_EQ(valueOf(button, name), "7");
        EXPECT_THAT(button.changes().take(), IsEmpty());
        EXPECT_EQ(button.paints(), 0);
    }
}

TEST_P(ImageProperties, checkedFontIsOf2160PointsAtMost)
{
    ImageButton button(library(), form, kind());
    button.load();
    auto const large = query<IFontDisp>(kit::newFont(L"Tahoma", 2170).get());
    EXPECT_EQ(button->putref_CheckedFont(large.get()), kInvalidPropertyValue);
}

TEST_P(ImageProperties, checkedFontIsTheVeryObjectThatWasAssigned)
{
    ImageButton button(library(), form, kind());
    button.load();
    auto const font = query<IFontDisp>(kit::newFont(L"Tahoma", 14).get());
    ASSERT_EQ(button->putref_CheckedFont(font.get()), S_OK);
    ComPtr<IFontDisp> kept;
    ASSERT_EQ(button->get_CheckedFont(kept.put()), S_OK);
    EXPECT_EQ(kept.get(), font.get());
}

TEST_P(ImageProperties, inUserModeIsActiveAndTheFormsMode)
{
    ImageButton button(library(), form, kind());
    button.load();
    auto const inUserMode = [&] {
        VARIANT_BOOL value = 0x55;
        EXPECT_EQ(button->InUserMode(&value), S_OK);
        return value;
    };
    EXPECT_EQ(inUserMode(), VARIANT_TRUE);
    button->put_Active(VARIANT_FALSE);
    EXPECT_EQ(inUserMode(), VARIANT_FALSE);
    button.setUserMode(false);
    EXPECT_EQ(inUserMode(), VARIANT_FALSE);
    button->put_Active(VARIANT_TRUE);
    EXPECT_EQ(inUserMode(), VARIANT_FALSE);
    EXPECT_EQ(button->InUserMode(nullptr), E_POINTER);
    EXPECT_EQ(kit::callByName(*button.dual(), L"InUserMode").value.toBool(), false);
}

TEST_P(ImageProperties, hwndAndHdcAreThoseOfTheWindow)
{
    ImageButton button(library(), form, kind());
    button.load();
    LONG value = 0;
    ASSERT_EQ(button->get_hwnd(&value), S_OK);
    EXPECT_EQ(LongToHandle(value), button.window());
    ASSERT_EQ(button->get_hdc(&value), S_OK);
    EXPECT_EQ(::WindowFromDC(static_cast<HDC>(LongToHandle(value))), button.window());
    EXPECT_EQ(button->get_hwnd(nullptr), E_POINTER);
    EXPECT_EQ(button->get_hdc(nullptr), E_POINTER);
}

TEST_P(ImageProperties, refreshDrawsTheButtonWithoutThePaintEvent)
{
    ImageButton button(library(), form, kind());
    button.load();
    button.forget();
    EXPECT_EQ(button->Refresh(), S_OK);
    EXPECT_EQ(button->DrawButton(), S_OK);
    EXPECT_THAT(button.events().ids(), IsEmpty());
}

TEST_P(ImageProperties, refreshAndDrawButtonPutBackWhatSomebodyPaintedOver)
{
    ImageButton button(library(), form, kind());
    button.load();
    for (auto const draw : {&_qvImageCommand::Refresh, &_qvImageCommand::DrawButton}) {
        {
            WindowDc const dc(button.window());
            ::SetPixelV(dc.get(), 60, 20, RGB(255, 0, 255));
        }
        ASSERT_EQ(pixelAt(button, 60, 20), RGB(255, 0, 255));
        EXPECT_EQ((button.dual()->*draw)(), S_OK);
        EXPECT_EQ(pixelAt(button, 60, 20), ::GetSysColor(COLOR_BTNFACE));
    }
}

TEST_P(ImageProperties, whileActiveIsFalseARunningFormStillHearsOfEachPaint)
{
    ImageButton button(library(), form, kind());
    button.load();
    ASSERT_EQ(button->put_Active(VARIANT_FALSE), S_OK);
    button.forget();
    EXPECT_EQ(button->put_BackColor(0x123456), S_OK);
    EXPECT_THAT(button.events().ids(), ElementsAre(kPaint));
}

TEST_P(ImageProperties, atDesignTimeRaiseNoEventAndTellWhatChanged)
{
    ImageButton button(library(), form, kind());
    button.site().setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofBool(false));
    button.load();
    button.forget();
    EXPECT_EQ(button->put_BackColor(0x123456), S_OK);
    EXPECT_THAT(button.events().ids(), IsEmpty());
    EXPECT_THAT(button.changes().take(), ElementsAre(kit::idOf(*button.dual(), L"BackColor")));
}

} // namespace
} // namespace quillet::image

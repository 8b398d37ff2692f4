// The properties of both classes: their initial values, and what assigning each of them does.
#include "Look.h"
#include "kit/Errors.h"

namespace quillet::image {
namespace {

class ImageProperties : public ImageTest {
protected:
    ImageButton button{library(), form, kind()};

    void initialise()
    {
        EXPECT_EQ(button.setSite(), S_OK);
        EXPECT_EQ(button.initNew(), S_OK);
    }
    void load()
    {
        button.load();
        button.forget();
    }
    /// A shown button whose width follows its content.
    void start()
    {
        button.load();
        ASSERT_EQ(button->put_AutoSizeWidth(VARIANT_TRUE), S_OK);
        button.forget();
    }
    /// Of an assignment since the button was told to forget.
    void expectEffect(wchar_t const* name, Effect effect)
    {
        SCOPED_TRACE(kit::narrow(name));
        EXPECT_EQ(button.paints(), effect & kRepaints ? 1 : 0);
        EXPECT_EQ(button.widths(), effect == kMeasures ? 1 : 0);
        EXPECT_EQ(button.events().ids().size(), effect & kRepaints ? 1U : 0U)
            << "raised something else than Paint";
        EXPECT_THAT(button.changes().take(), ElementsAreArray({kit::idOf(*button.dual(), name)}));
    }
    std::string value(wchar_t const* name) const { return valueOf(button, name); }
    HRESULT put(wchar_t const* name, Variant const& value)
    {
        return kit::putByName(*button.dual(), name, value).error();
    }
    void putAllBut(std::wstring const& left)
    {
        for (SavedRow const& row : savedValues())
            if (left != row.name)
                put(row.name, row.otherThanDefault(kind()));
    }
    void expectDefaults() const
    {
        for (SavedRow const& row : savedValues())
            EXPECT_EQ(value(row.name), kit::textOf(row.defaultOf(kind()))) << kit::narrow(row.name);
    }
};
QV_BOTH_CLASSES(ImageProperties);

TEST_P(ImageProperties, ofANewInstanceHaveTheDefaultsOfItsClass)
{
    initialise();
    expectDefaults();
    EXPECT_EQ(button.caption(), L"") << "an image button does not take its name for a caption";
    EXPECT_EQ(value(L"ToolTipText"), "");
    EXPECT_EQ(value(L"MouseIcon"), "none");
    EXPECT_TRUE(kit::equalFonts(*button.font().get(), *formFont().get()));
    ASSERT_TRUE(button.checkedFont());
    EXPECT_TRUE(kit::equalFonts(*button.checkedFont().get(), *formFont().get()));
}

TEST_P(ImageProperties, ofANewInstanceHoldEmptyPictureObjects)
{
    initialise();
    for (auto const get : {&_qvImageCommand::get_Image, &_qvImageCommand::get_DisabledImage,
                           &_qvImageCommand::get_HotImage, &_qvImageCommand::get_PressedImage}) {
        ComPtr<IPictureDisp> picture;
        ASSERT_EQ((button.dual()->*get)(picture.put()), S_OK);
        ASSERT_TRUE(picture);
        EXPECT_EQ(typeOf(picture.get()), 0);
    }
}

TEST_P(ImageProperties, haveTheirDefaultsAlreadyBeforeAnybodyInitialises) { expectDefaults(); }

TEST_P(ImageProperties, areSetBackByInitialisingButForThoseOfTheSurface)
{
    initialise();
    putAllBut(L"");
    ASSERT_EQ(button.initNew(), S_OK);
    for (SavedRow const& row : savedValues()) {
        std::wstring const name = row.name;
        bool const kept = name == L"ForeColor" || name == L"Enabled" || name == L"MousePointer";
        if (name == L"BackColor") // kept, too, but OfficeXPColors has overwritten it
            continue;
        EXPECT_EQ(value(row.name), kit::textOf(kept ? row.otherThanDefault(kind()) : row.defaultOf(kind())))
            << kit::narrow(row.name);
    }
}

TEST_P(ImageProperties, initialisingPaintsOnceAndChangesNothing)
{
    ASSERT_EQ(button.setSite(), S_OK);
    button.forget();
    ASSERT_EQ(button.initNew(), S_OK);
    EXPECT_EQ(button.paints(), 1);
    EXPECT_THAT(button.changes().take(), IsEmpty());
}

TEST_P(ImageProperties, initialisingPaintsBeforeThePicturesAreEmptied)
{
    initialise();
    ASSERT_EQ(button->putref_Image(pictureOf(kImage).get()), S_OK);
    short type = -2;
    kit::Inside const any(button, "", [&] {
        ComPtr<IPictureDisp> picture;
        button->get_Image(picture.put());
        type = typeOf(picture.get());
    });
    ASSERT_EQ(button.initNew(), S_OK);
    EXPECT_EQ(type, PICTYPE_BITMAP);
    EXPECT_EQ(value(L"Image"), "none");
}

TEST_P(ImageProperties, initialisingPaintsBetweenTheFocusRectangleAndTheDarkBorders)
{
    initialise();
    for (wchar_t const* const name : {L"CaptionIndent", L"DarkBorderColor", L"HotDarkBorderColor"})
        ASSERT_EQ(put(name, Variant::ofLong(99)), S_OK);
    VARIANT_BOOL const focusRectangle = kind().isTool ? VARIANT_FALSE : VARIANT_TRUE;
    ASSERT_EQ(button->put_ShowFocusRectangle(static_cast<VARIANT_BOOL>(~focusRectangle)), S_OK);
    ASSERT_EQ(button->put_CheckButton(VARIANT_TRUE), S_OK);
    std::vector<std::string> seen;
    kit::Inside const any(button, "", [&] {
        for (wchar_t const* const name : {L"CaptionIndent", L"ShowFocusRectangle", L"DarkBorderColor",
                                          L"HotDarkBorderColor", L"CheckButton"})
            seen.push_back(value(name));
    });
    ASSERT_EQ(button.initNew(), S_OK);
    EXPECT_THAT(seen, ElementsAreArray<std::string>({"4", std::to_string(focusRectangle), "99", "99", "-1"}));
}

TEST_P(ImageProperties, tellOfTheChangeThenMeasureAndThenPaint)
{
    start();
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
    EXPECT_THAT(order, ElementsAreArray({"told", "measured", "painted"}));
}

TEST_P(ImageProperties, whenAssignedStoreTellRepaintAndMeasureAsEachShould)
{
    for (SavedRow const& row : savedValues()) {
        if (row.name == std::wstring(L"AutoSizeWidth"))
            continue; // without which nothing is measured
        start();      // again as it was laid out
        Variant const other = row.otherThanDefault(kind());
        EXPECT_EQ(put(row.name, other), S_OK) << kit::narrow(row.name);
        expectEffect(row.name, row.effect);
        std::string const expected = row.name == std::wstring(L"OfficeXPColors") ? "-1" : kit::textOf(other);
        EXPECT_EQ(value(row.name), expected) << kit::narrow(row.name);
    }
}

TEST_P(ImageProperties, thatAreObjectsDoTheSame)
{
    start();
    for (SavedRow const& row : savedRows()) {
        if (row.type != VT_UNKNOWN)
            continue;
        button.forget();
        std::wstring const name = row.name;
        ComPtr<IUnknown> object = pictureOf(kImage).as<IUnknown>();
        if (name == L"MouseIcon")
            object = kit::newIconPicture().as<IUnknown>();
        else if (name.ends_with(L"Font"))
            object = kit::newFont(L"Tahoma", 12).as<IUnknown>();
        EXPECT_EQ(kit::setByName(*button.dual(), row.name, object.get()).result, S_OK);
        expectEffect(row.name, row.effect);
    }
}

TEST_P(ImageProperties, toolTipTextIsStoredToldAndNeverPainted)
{
    start();
    EXPECT_EQ(button->put_ToolTipText(Bstr(L"Opens a form").get()), S_OK);
    expectEffect(L"ToolTipText", kNothing);
    EXPECT_EQ(value(L"ToolTipText"), "Opens a form");
}

TEST_P(ImageProperties, autoSizeWidthMeasuresWhenItIsSwitchedOnAndRepaintsEitherWay)
{
    load();
    EXPECT_EQ(button->put_AutoSizeWidth(VARIANT_TRUE), S_OK);
    expectEffect(L"AutoSizeWidth", kMeasures);
    button.forget();
    EXPECT_EQ(button->put_AutoSizeWidth(VARIANT_FALSE), S_OK);
    expectEffect(L"AutoSizeWidth", kRepaints);
}

TEST_P(ImageProperties, measureNothingWhileAutoSizeWidthIsOff)
{
    load();
    putAllBut(L"AutoSizeWidth");
    EXPECT_EQ(button.widths(), 0);
}

TEST_P(ImageProperties, officeXPColorsOverwritesTheBackColourWhenItIsSwitchedOnAndThenLeavesIt)
{
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
    start();
    for (wchar_t const* const name : {L"BorderWidth", L"HotBorderWidth", L"PressedBorderWidth"}) {
        ASSERT_EQ(put(name, Variant::ofShort(7)), S_OK);
        button.forget();
        EXPECT_EQ(put(name, Variant::ofLong(40000)), kOverflow);
        EXPECT_EQ(value(name), "7");
        EXPECT_THAT(button.changes().take(), IsEmpty());
        EXPECT_EQ(button.paints(), 0);
    }
}

TEST_P(ImageProperties, checkedFontIsOf2160PointsAtMost)
{
    button.load();
    auto const large = query<IFontDisp>(kit::newFont(L"Tahoma", 2170).get());
    EXPECT_EQ(button->putref_CheckedFont(large.get()), kInvalidPropertyValue);
}

TEST_P(ImageProperties, checkedFontIsTheVeryObjectThatWasAssigned)
{
    button.load();
    auto const font = query<IFontDisp>(kit::newFont(L"Tahoma", 14).get());
    ASSERT_EQ(button->putref_CheckedFont(font.get()), S_OK);
    ComPtr<IFontDisp> kept;
    ASSERT_EQ(button->get_CheckedFont(kept.put()), S_OK);
    EXPECT_EQ(kept.get(), font.get());
}

TEST_P(ImageProperties, inUserModeIsActiveAndTheFormsMode)
{
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
    load();
    EXPECT_EQ(button->Refresh(), S_OK);
    EXPECT_EQ(button->DrawButton(), S_OK);
    EXPECT_THAT(button.events().ids(), IsEmpty());
}

TEST_P(ImageProperties, refreshAndDrawButtonPutBackWhatSomebodyPaintedOver)
{
    button.load();
    for (auto const draw : {&_qvImageCommand::Refresh, &_qvImageCommand::DrawButton}) {
        ::SetPixelV(WindowDc(button.window()).get(), 60, 20, RGB(255, 0, 255));
        ASSERT_EQ(pixelAt(button, 60, 20), RGB(255, 0, 255));
        EXPECT_EQ((button.dual()->*draw)(), S_OK);
        EXPECT_EQ(pixelAt(button, 60, 20), ::GetSysColor(COLOR_BTNFACE));
    }
}

TEST_P(ImageProperties, whileActiveIsFalseARunningFormStillHearsOfEachPaint)
{
    button.load();
    ASSERT_EQ(button->put_Active(VARIANT_FALSE), S_OK);
    button.forget();
    EXPECT_EQ(button->put_BackColor(0x123456), S_OK);
    EXPECT_THAT(button.events().ids(), ElementsAreArray({kPaint}));
}

TEST_P(ImageProperties, atDesignTimeRaiseNoEventAndTellWhatChanged)
{
    button.site().setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofBool(false));
    load();
    EXPECT_EQ(button->put_BackColor(0x123456), S_OK);
    EXPECT_THAT(button.events().ids(), IsEmpty());
    EXPECT_THAT(button.changes().take(), ElementsAreArray({kit::idOf(*button.dual(), L"BackColor")}));
}

} // namespace
} // namespace quillet::image

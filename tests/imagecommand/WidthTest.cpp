// The width that follows picture and caption, to the twip, and the ways it reaches the container.
#include "Look.h"

#include <cmath>

namespace quillet::image {
namespace {

/// So many pixels in whole twips.
double twips(int pixels) { return std::nearbyint(pixels * twipsPerPixel()); }

class ImageWidth : public LoadedTest {
protected:
    ImageWidth() { EXPECT_EQ(button->put_AutoSizeWidth(VARIANT_TRUE), S_OK); }
    double width()
    {
        Variant const value = button.site().extender().value(L"Width");
        return value.convertedTo(VT_R8).get().dblVal;
    }
    int textWidth(std::wstring const& text, IFont& font)
    {
        return static_cast<int>(kit::textSize(kit::handleOf(font), text).cx);
    }
    int textWidth(std::wstring const& text) { return textWidth(text, *button.font().get()); }
    /// Of a caption and nothing else, inside borders of one pixel.
    void expectCaption(std::wstring const& text) { EXPECT_EQ(width(), twips(4 + textWidth(text) + 3 + 2)); }
    void setImage() { ASSERT_EQ(button->putref_Image(pictureOf(kImage).get()), S_OK); }
};
QV_BOTH_CLASSES(ImageWidth);

TEST_P(ImageWidth, ofACaptionIsIndentTextThreePixelsAndBothBorders)
{
    button.setCaption(L"&Save as");
    expectCaption(L"Save as");
    ASSERT_EQ(button->put_BorderWidth(Variant::ofShort(5).get()), S_OK);
    EXPECT_EQ(width(), twips(4 + textWidth(L"Save as") + 3 + 10));
}

TEST_P(ImageWidth, isOfTheCaptionAsItIsWrittenInTheCodePage)
{
    wchar_t const* const text = L"\x4E2D\x0E01\x0416\x4E2D";
    button.setCaption(text);
    expectCaption(kit::inCodePage(text));
}

TEST_P(ImageWidth, losesOnlyTheFirstMarker)
{
    button.setCaption(L"A&B&C");
    expectCaption(L"AB&C");
}

TEST_P(ImageWidth, ofPictureAndCaptionTakesThePictureForTheIndentAndTwoPixelsMore)
{
    button.setCaption(L"&Save as");
    setImage();
    EXPECT_EQ(width(), twips(16 + textWidth(L"Save as") + 3 + 2 + 2));
    ASSERT_EQ(button->put_CaptionIndent(40), S_OK);
    button.setCaption(L"&Save as");
    EXPECT_EQ(width(), twips(16 + textWidth(L"Save as") + 3 + 2 + 2)) << "the indent is not looked at";
}

TEST_P(ImageWidth, isFilledExactlyByPictureGapAndCaption)
{
    button.site().extender().onWrite(L"Width", [&](Variant const& value) {
        RECT place = button.site().position;
        place.right = place.left + static_cast<LONG>(std::lround(value.toLong() / twipsPerPixel()));
        button.place(place);
    });
    setImage();
    button.setCaption(L"WWW");
    kit::pumpPending();
    OLE_COLOR light = 0;
    button->get_LightBorderColor(&light);
    COLORREF const edge = ::GetSysColor(static_cast<int>(light & 0xFF));
    Look look{::GetSysColor(COLOR_BTNTEXT), ::GetSysColor(COLOR_BTNFACE), edge, edge, 1, L"WWW"};
    look.captionLeft = 1 + 4 + 16 + 1;
    look.shown = Shown{kImage, 5, 14};
    EXPECT_EQ(button.size().cx, look.captionLeft + textWidth(L"WWW") + 1);
    EXPECT_EQ(differencesFrom(button, look), "");
    button.site().extender().onWrite(L"Width", {});
}

TEST_P(ImageWidth, ofAPictureAloneHasNoThreePixels)
{
    setImage();
    EXPECT_EQ(width(), twips(16 + 0 + 2 + 2));
}

TEST_P(ImageWidth, ofNothingIsTheIndentAndTheBorders)
{
    button.setCaption(L"");
    EXPECT_EQ(width(), twips(4 + 2));
}

TEST_P(ImageWidth, leavesTheBordersOutWhereThereIsNoStyleAndCountsThemForAnyStyle)
{
    button.setCaption(L"Wide");
    ASSERT_EQ(button->put_BorderStyle(imgCmdBorderStyleConstants::None), S_OK);
    EXPECT_EQ(width(), twips(4 + textWidth(L"Wide") + 3));
    ASSERT_EQ(button->put_BorderStyle(imgCmdBorderStyleConstants::Sunken), S_OK);
    expectCaption(L"Wide");
}

TEST_P(ImageWidth, takesTheWiderOfBothFonts)
{
    auto const large = kit::newFont(L"Tahoma", 20, true);
    button.setCheckedFont(large.get());
    button.setCaption(L"Wide");
    ASSERT_GT(textWidth(L"Wide", *large.get()), textWidth(L"Wide"));
    EXPECT_EQ(width(), twips(4 + textWidth(L"Wide", *large.get()) + 3 + 2));
    button.setCheckedFont(kit::newFont(L"Tahoma", 5).get());
    button.setCaption(L"Wide");
    expectCaption(L"Wide");
}

TEST_P(ImageWidth, goesByTheNormalPictureAndBorderInEveryLook)
{
    setImage();
    ASSERT_EQ(button->put_HotBorderWidth(Variant::ofShort(20).get()), S_OK);
    ASSERT_EQ(button->putref_HotImage(pictureOf({40, 10, RGB(1, 1, 1)}).get()), S_OK);
    button.makeHot();
    ASSERT_EQ(button->put_PressedBorderWidth(Variant::ofShort(9).get()), S_OK);
    EXPECT_EQ(width(), twips(16 + 2 + 2));
    EXPECT_EQ(pixelAt(button, 60, 20), RGB(1, 1, 1)) << "measuring must not leave the other picture shown";
}

TEST_P(ImageWidth, staysStaleAfterTheIndentUntilSomethingMeasures)
{
    button.setCaption(L"Wide");
    double const before = width();
    ASSERT_EQ(button->put_CaptionIndent(20), S_OK);
    EXPECT_EQ(width(), before);
    button.setCaption(L"Wide");
    EXPECT_EQ(width(), before + twips(16));
}

TEST_P(ImageWidth, asksTheSiteWhereThereIsNoExtender)
{
    form.record().answer("Site.GetExtendedControl", E_NOTIMPL);
    form.record().forget();
    button.setCaption(L"Wide");
    int const right = 20 + 4 + textWidth(L"Wide") + 3 + 2;
    EXPECT_EQ(form.record().count("Site.OnPosRectChange(20,30," + std::to_string(right) + ",70)"), 1);
    EXPECT_EQ(button.size().cx, right - 20);
}

TEST_P(ImageWidth, asksTheSiteWhereTheExtenderHasNoWidthOrRefusesIt)
{
    button.site().extender().remove(L"Width");
    form.record().forget();
    button.setCaption(L"Wide");
    EXPECT_EQ(form.record().countFrom("Site.OnPosRectChange"), 1);
    button.site().extender().refuse(L"Width", E_ACCESSDENIED);
    button.setCaption(L"Wider still");
    EXPECT_EQ(form.record().countFrom("Site.OnPosRectChange"), 2);
    EXPECT_EQ(button.size().cx, 4 + textWidth(L"Wider still") + 3 + 2);
}

TEST_P(ImageWidth, livesWithASiteThatRefuses)
{
    form.record().answer("Site.GetExtendedControl", E_NOTIMPL);
    form.record().answer("Site.OnPosRectChange", E_NOTIMPL);
    button.setCaption(L"Wide");
    EXPECT_EQ(button.size().cx, 120);
}

TEST_P(ImageWidth, changesTheOwnExtentBeforeActivation)
{
    ImageButton lonely(library(), form, kind(), kPlaceBelow, L"Lonely");
    lonely->put_AutoSizeWidth(VARIANT_TRUE);
    lonely.setCaption(L"Wide");
    SIZEL extent{};
    ASSERT_EQ(lonely.as<IOleObject>()->GetExtent(DVASPECT_CONTENT, &extent), S_OK);
    int const pixels = 4 + textWidth(L"Wide", *lonely.font().get()) + 3 + 2;
    EXPECT_EQ(extent.cx, ::MulDiv(static_cast<int>(twips(pixels)), 2540, 1440));
}

} // namespace
} // namespace quillet::image

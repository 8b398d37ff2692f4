// Which of its pictures a button shows, and what of a picture is seen through; many buttons with pictures one
// after another, and many paints of one, leave nothing behind.
#include "Look.h"
#include "kit/UiThread.h"
#include "kit/Usage.h"

namespace quillet::image {
namespace {

class ImagePictureChoice : public LoadedTest {
protected:
    ImagePictureChoice() { EXPECT_EQ(button->putref_Image(pictureOf(kImage).get()), S_OK); }
    void setDisabled() { EXPECT_EQ(button->putref_DisabledImage(pictureOf(kDisabled).get()), S_OK); }
    void setHot() { EXPECT_EQ(button->putref_HotImage(pictureOf(kHot).get()), S_OK); }
    void setPressed() { EXPECT_EQ(button->putref_PressedImage(pictureOf(kPressed).get()), S_OK); }
    void setAll()
    {
        setDisabled();
        setHot();
        setPressed();
    }
    /// The middle of the button shows the picture's colour.
    void expectShown(Plain const& picture) { EXPECT_EQ(pixelAt(button, 60, 20), picture.color); }
};
QV_BOTH_CLASSES(ImagePictureChoice);

TEST_P(ImagePictureChoice, atRestIsImage)
{
    setAll();
    expectShown(kImage);
}

TEST_P(ImagePictureChoice, underTheCursorIsHotImageOrElseImage)
{
    button.makeHot();
    expectShown(kImage);
    setHot();
    expectShown(kHot);
    setPressed();
    expectShown(kHot);
    button.leave();
    expectShown(kImage);
}

TEST_P(ImagePictureChoice, pressedIsPressedImageOrElseHotImageOrElseImage)
{
    button.makePressed();
    expectShown(kImage);
    setHot();
    expectShown(kHot);
    setPressed();
    expectShown(kPressed);
}

TEST_P(ImagePictureChoice, disabledIsDisabledImageOrElseImageUnchanged)
{
    setHot();
    setPressed();
    ASSERT_EQ(button->put_Enabled(VARIANT_FALSE), S_OK);
    expectShown(kImage);
    setDisabled();
    expectShown(kDisabled);
    button.makeHot();
    expectShown(kDisabled);
}

TEST_P(ImagePictureChoice, checkedAtRestIsPressedImageOrElseImage)
{
    button.check();
    expectShown(kImage);
    setPressed();
    expectShown(kPressed);
    button.makeHot();
    expectShown(kImage); // hot, not resting
    button.leave();
    ASSERT_EQ(button->put_Checked(VARIANT_FALSE), S_OK);
    expectShown(kImage);
}

TEST_P(ImagePictureChoice, checkedAtRestIsPressedImageAmongAll)
{
    setAll();
    button.check();
    expectShown(kPressed);
}

TEST_P(ImagePictureChoice, checkedWithoutBeingACheckButtonIsImage)
{
    setPressed();
    ASSERT_EQ(button->put_Checked(VARIANT_TRUE), S_OK);
    expectShown(kImage);
}

TEST_P(ImagePictureChoice, atDesignTimeIsAlwaysImage)
{
    setAll();
    button.check();
    button.makeHot();
    button.setUserMode(false);
    button.repaint();
    expectShown(kImage);
    ASSERT_EQ(button->put_Enabled(VARIANT_FALSE), S_OK);
    expectShown(kImage);
}

TEST_P(ImagePictureChoice, whileNotActiveIsAlwaysImage)
{
    setAll();
    button.check();
    ASSERT_EQ(button->put_Active(VARIANT_FALSE), S_OK);
    button.makeHot();
    expectShown(kImage);
    ASSERT_EQ(button->put_Enabled(VARIANT_FALSE), S_OK);
    expectShown(kImage);
}

TEST_P(ImagePictureChoice, passesOverPicturesThatAreEmpty)
{
    ImageButton fresh(library(), form, kind(), kPlaceBelow, L"Fresh");
    fresh.start(); // its pictures are empty objects
    ASSERT_EQ(fresh->putref_Image(pictureOf(kImage).get()), S_OK);
    fresh.makeHot();
    EXPECT_EQ(pixelAt(fresh, 60, 20), kImage.color);
}

TEST_P(ImagePictureChoice, isShownAgainOverTheNewFaceWhenTheHostDraws)
{
    ASSERT_EQ(button->Refresh(), S_OK);
    expectShown(kImage);
    ASSERT_EQ(button->DrawButton(), S_OK);
    expectShown(kImage);
}

TEST_P(ImagePictureChoice, isNothingWhereThereIsNoImage)
{
    ImageButton bare(library(), form, kind(), kPlaceBelow, L"Bare");
    bare.load();
    ASSERT_EQ(bare->putref_HotImage(pictureOf(kHot).get()), S_OK);
    EXPECT_EQ(pixelAt(bare, 60, 20), ::GetSysColor(COLOR_BTNFACE));
    bare.makeHot();
    EXPECT_EQ(pixelAt(bare, 60, 20), kHot.color);
}

constexpr COLORREF kBehind = RGB(200, 100, 0);
constexpr int kSide = 16;

/// Rows of four: clear, a quarter, three quarters, solid; all of them green.
Pixels ramp()
{
    Pixels pixels;
    for (int y = 0; y < kSide; ++y)
        for (int x = 0; x < kSide; ++x) {
            constexpr std::uint32_t kAlpha[] = {0, 64, 192, 255};
            pixels.push_back(kAlpha[x / 4] << 24 | 0x00FF00);
        }
    return pixels;
}

/// That much of the one over the rest of the other.
int mixed(int over, int under, int alpha) { return (over * alpha + under * (255 - alpha) + 127) / 255; }

class ImageTransparency : public LoadedTest {
protected:
    ImageTransparency() { EXPECT_EQ(button->put_BackColor(kBehind), S_OK); }

    void expectPixel(int column, int alpha)
    {
        COLORREF const shown = pixelAt(button, (120 - kSide) / 2 + column, 20);
        // Systems round the mixture their own way.
        EXPECT_NEAR(GetRValue(shown), mixed(0, GetRValue(kBehind), alpha), 2) << column;
        EXPECT_NEAR(GetGValue(shown), mixed(255, GetGValue(kBehind), alpha), 2) << column;
        EXPECT_NEAR(GetBValue(shown), mixed(0, GetBValue(kBehind), alpha), 2) << column;
    }
    void expectRamp()
    {
        expectPixel(1, 0);
        expectPixel(5, 64);
        expectPixel(9, 192);
        expectPixel(14, 255);
    }
    /// Also in the next paint, as the face below is new each time.
    void expectRampOf(ComPtr<IPictureDisp> const& picture)
    {
        ASSERT_EQ(button->putref_Image(picture.get()), S_OK);
        expectRamp();
        button.repaint();
        expectRamp();
    }
};
QV_BOTH_CLASSES(ImageTransparency);

TEST_P(ImageTransparency, ofAnIconIsKept) { expectRampOf(alphaIcon(ramp(), kSide)); }

TEST_P(ImageTransparency, ofABitmapIsKept) { expectRampOf(alphaBitmap(ramp(), kSide)); }

TEST_P(ImageTransparency, ofABitmapThatNeverMeantItsAlphaIsNone)
{
    Pixels const green(static_cast<size_t>(kSide * kSide), 0x00FF00U);
    ASSERT_EQ(button->putref_Image(alphaBitmap(green, kSide).get()), S_OK);
    EXPECT_EQ(pixelAt(button, 60, 20), RGB(0, 255, 0));
}

TEST_P(ImageTransparency, ofAnIconIsKeptInAViewOfTheControl)
{
    ASSERT_EQ(button->putref_Image(alphaIcon(ramp(), kSide).get()), S_OK);
    kit::Canvas canvas(120, 40, RGB(1, 2, 3));
    button.draw(canvas);
    EXPECT_EQ(canvas.at(53, 20), kBehind);
    EXPECT_EQ(canvas.at(66, 20), RGB(0, 255, 0));
}

TEST_P(ImageTransparency, doesNotMatterWhereThePictureIsInUseElsewhere)
{
    auto const picture = pictureOf(kImage);
    ASSERT_EQ(button->putref_Image(picture.get()), S_OK);
    OLE_HANDLE handle = 0;
    ASSERT_EQ(query<IPicture>(picture.get())->get_Handle(&handle), S_OK);
    UniqueMemoryDc const dc(::CreateCompatibleDC(nullptr));
    SelectScope const busy(dc.get(), static_cast<HBITMAP>(LongToHandle(static_cast<LONG>(handle))));
    button.repaint();
    EXPECT_NE(pixelAt(button, 60, 20), CLR_INVALID); // whatever it shows, it goes on
}

TEST_P(ImageTransparency, ofAMetafileThatWasLoadedIsItsOwn)
{
    auto const bag = kit::make<kit::FakeBag>();
    bag->put(L"Image", Variant::ofDispatch(metafilePicture().get()));
    bag->put(L"BackColor", Variant::ofLong(kBehind));
    ASSERT_EQ(button.load(*bag.get()), S_OK);
    button.repaint();
    EXPECT_EQ(pixelAt(button, 3, 3), kBehind);
}

Pixels halfClear()
{
    Pixels pixels(256, 0x80FF0000U);
    pixels[0] = 0;
    return pixels;
}

class ImageSoak : public ImageTest {
protected:
    static void setPictures(ImageButton& button)
    {
        EXPECT_EQ(button->putref_Image(alphaIcon(halfClear(), 16).get()), S_OK);
        EXPECT_EQ(button->putref_HotImage(alphaBitmap(halfClear(), 16).get()), S_OK);
        EXPECT_EQ(button->putref_PressedImage(pictureOf(kPressed).get()), S_OK);
        EXPECT_EQ(button->putref_DisabledImage(kit::newIconPicture().get()), S_OK);
    }
};
QV_BOTH_CLASSES(ImageSoak);

TEST_P(ImageSoak, ofThreeHundredLivesLeavesNothingBehind)
{
    kit::onNewThread([&] {
        kit::FakeForm own;
        kit::expectNothingIsLeft(300, [&](int) {
            ImageButton button(library(), own, kind());
            button.load();
            setPictures(button);
            button.setCaption(L"&Soaked");
            EXPECT_EQ(button->put_AutoSizeWidth(VARIANT_TRUE), S_OK);
            EXPECT_EQ(button->put_Enabled(VARIANT_FALSE), S_OK);
            button.remove();
            own.record().forget();
        });
    });
}

TEST_P(ImageSoak, ofThousandsOfPaintsInEveryLookLeavesNothingBehind)
{
    kit::onNewThread([&] {
        kit::FakeForm own;
        ImageButton button(library(), own, kind());
        button.load();
        setPictures(button);
        kit::expectNothingIsLeft(2000, [&](int i) {
            EXPECT_EQ(button->put_Enabled(i % 2 ? VARIANT_TRUE : VARIANT_FALSE), S_OK);
            button->DrawButton();
            button.events().forget();
            button.changes().take();
            own.record().forget();
        });
    });
}

} // namespace
} // namespace quillet::image

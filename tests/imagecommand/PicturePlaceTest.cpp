// Where picture and caption stand, to the pixel, and how far they move while a button is pressed or checked.
#include "Look.h"
#include "kit/Errors.h"
#include "kit/Memory.h"

#include <cmath>

namespace quillet::image {
namespace {

constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr int kMargin = 4;
constexpr int kGap = 1;

class ImagePicturePlace : public LoadedTest {
protected:
    ImagePicturePlace()
    {
        setColors(button);
        EXPECT_EQ(button->putref_Image(pictureOf(kImage).get()), S_OK);
    }
    void setCaption(wchar_t const* text) { button.setCaption(text); }
    void setBorder(short width, imgCmdBorderStyleConstants style = imgCmdBorderStyleConstants::Fixed)
    {
        ASSERT_EQ(button->put_BorderWidth(Variant::ofShort(width).get()), S_OK);
        ASSERT_EQ(button->put_BorderStyle(style), S_OK);
    }
    void resize(int width, int height)
    {
        button.place({20, 30, 20 + width, 30 + height});
        kit::pumpPending();
    }
    /// The caption is centred and the picture left of the middle.
    void expectCentred()
    {
        ASSERT_EQ(button->put_CentreCaption(VARIANT_TRUE), S_OK);
        Look expected = plainLook(1, button.caption());
        expected.centred = true;
        expected.shown = Shown{kImage, 1 + kMargin, 14};
        EXPECT_EQ(differencesFrom(button, expected), "");
    }
    /// The picture stands there, and the caption, if there is one, beside it.
    void expectAt(int left, int top, Plain const& picture = kImage, int border = 1)
    {
        Look expected = plainLook(border, button.caption());
        expected.captionLeft = left + picture.width + kGap;
        expected.shown = Shown{picture, left, top};
        EXPECT_EQ(differencesFrom(button, expected), "");
    }
};
QV_BOTH_CLASSES(ImagePicturePlace);

TEST_P(ImagePicturePlace, withoutCaptionIsTheMiddle) { expectAt((120 - 16) / 2, (40 - 12) / 2); }

/// The middle in whole twips, rounded down, and from there to the nearest pixel.
int middleInTwips(int space, int length)
{
    double const start = std::floor((space - length) * twipsPerPixel() / 2);
    return static_cast<int>(std::nearbyint(start / twipsPerPixel()));
}

// At 96 dots an inch half a pixel is 7.5 twips; rounded down to 7 it is less than half a pixel.
TEST_P(ImagePicturePlace, withoutCaptionIsRoundedDownToWholeTwips)
{
    if (twipsPerPixel() == 15) {
        EXPECT_EQ(middleInTwips(121, 16), 52);
        EXPECT_EQ(middleInTwips(123, 16), 53);
    }
    for (int width = 117; width < 125; ++width) {
        resize(width, width - 80);
        expectAt(middleInTwips(width, 16), middleInTwips(width - 80, 12));
    }
}

TEST_P(ImagePicturePlace, besideACaptionIsFourPixelsInsideTheBorderAndInTheMiddle)
{
    setCaption(L"&Open");
    expectAt(1 + kMargin, (40 - 12) / 2);
}

TEST_P(ImagePicturePlace, besideACaptionRoundsHalvesToTheEvenPixel)
{
    setCaption(L"&Open");
    for (int height = 38; height < 46; ++height) {
        resize(120, height);
        expectAt(1 + kMargin, middle(height, 12));
    }
}

TEST_P(ImagePicturePlace, besideACaptionGoesByTheNormalBorderWhateverTheLook)
{
    setCaption(L"&Open");
    setColorsOfEveryLook(button);
    ASSERT_EQ(button->put_BorderWidth(Variant::ofShort(3).get()), S_OK);
    ASSERT_EQ(button->put_HotBorderWidth(Variant::ofShort(5).get()), S_OK);
    expectAt(3 + kMargin, 14, kImage, 3);
    button.makeHot();
    expectAt(3 + kMargin, 14, kImage, 5);
}

TEST_P(ImagePicturePlace, besideACaptionIgnoresTheIndent)
{
    setCaption(L"&Open");
    ASSERT_EQ(button->put_CaptionIndent(30), S_OK);
    expectAt(1 + kMargin, 14);
}

TEST_P(ImagePicturePlace, withoutABorderIsFourPixelsFromTheEdge)
{
    setCaption(L"&Open");
    setBorder(5, imgCmdBorderStyleConstants::None);
    expectAt(kMargin, 14, kImage, 0);
}

TEST_P(ImagePicturePlace, countsTheStyleAsAFactor)
{
    setCaption(L"&Open");
    setBorder(5, imgCmdBorderStyleConstants::Sunken);
    expectAt(2 * 5 + kMargin, 14, kImage, 0);
}

TEST_P(ImagePicturePlace, leavesACentredCaptionWhereItIs)
{
    setCaption(L"&Go");
    expectCentred();
}

TEST_P(ImagePicturePlace, liesOverTheCaption)
{
    setCaption(L"MMMMMMMMMMMMMMMMMMMMMMMM");
    expectCentred();
}

TEST_P(ImagePicturePlace, withoutCaptionButAutoSizedIsTheMiddle)
{
    ASSERT_EQ(button->put_AutoSizeWidth(VARIANT_TRUE), S_OK);
    expectAt((120 - 16) / 2, (40 - 12) / 2);
}

TEST_P(ImagePicturePlace, followsTheShownPicturesOwnSize)
{
    setCaption(L"&Open");
    ASSERT_EQ(button->putref_DisabledImage(pictureOf({30, 20, RGB(1, 250, 250)}).get()), S_OK);
    button->put_DisabledForeColor(kFore);
    ASSERT_EQ(button->put_Enabled(VARIANT_FALSE), S_OK);
    expectAt(1 + kMargin, 10, {30, 20, RGB(1, 250, 250)});
}

TEST_P(ImagePicturePlace, movesTheCaptionOfAButtonThatHasAPictureInOneLookOnly)
{
    ImageButton bare(library(), form, kind(), kPlaceBelow, L"Bare");
    bare.load();
    bare->put_CaptionIndent(7);
    ASSERT_EQ(bare->putref_HotImage(pictureOf(kHot).get()), S_OK);
    setColorsOfEveryLook(bare);
    bare.setCaption(L"&Open");
    Look expected = plainLook(1, L"&Open");
    expected.captionLeft = 1 + 7;
    EXPECT_EQ(differencesFrom(bare, expected), "");
    bare.makeHot();
    expected.captionLeft = 1 + kMargin + kHot.width + kGap;
    expected.shown = Shown{kHot, 1 + kMargin, middle(40, kHot.height)};
    EXPECT_EQ(differencesFrom(bare, expected), "");
}

TEST_P(ImagePicturePlace, isCutAtTheEdgeWhereThePictureIsTooLarge)
{
    Plain const large{200, 90, RGB(1, 250, 1)};
    ASSERT_EQ(button->putref_Image(pictureOf(large).get()), S_OK);
    expectAt((120 - 200) / 2, (40 - 90) / 2, large);
}

// Its bitmap holds two pictures, one above the other: which pixels stay, and which of the others are turned.
TEST_P(ImagePicturePlace, ofAnIconOfAMaskAloneIsHalfTheHeightOfItsBitmap)
{
    ASSERT_EQ(button->putref_Image(maskIcon(8).get()), S_OK);
    EXPECT_EQ(pixelAt(button, 60, 15), kBack);
    EXPECT_EQ(pixelAt(button, 60, 16), kBlack);
    EXPECT_EQ(pixelAt(button, 60, 23), kBlack);
    EXPECT_EQ(pixelAt(button, 60, 24), kBack);
}

TEST_P(ImagePicturePlace, isMeasuredAgainWhenThePictureObjectHoldsAnother)
{
    auto const picture = pictureOf(kImage);
    ASSERT_EQ(button->putref_Image(picture.get()), S_OK);
    auto const saved = kit::streamOf();
    ASSERT_EQ(query<IPersistStream>(pictureOf(kHot).get())->Save(saved.get(), FALSE), S_OK);
    auto const other = kit::streamOf(kit::bytesOf(*saved.get()));
    ASSERT_EQ(query<IPersistStream>(picture.get())->Load(other.get()), S_OK);
    button.repaint();
    // Of 10 by 14 pixels in the middle of 120 by 40; some systems load it in other colours.
    for (POINT const inside : {POINT{55, 13}, POINT{64, 13}, POINT{55, 26}, POINT{64, 26}})
        EXPECT_NE(pixelAt(button, inside.x, inside.y), kBack);
    for (POINT const beside : {POINT{54, 13}, POINT{65, 13}, POINT{55, 12}, POINT{55, 27}})
        EXPECT_EQ(pixelAt(button, beside.x, beside.y), kBack);
}

TEST_P(ImagePicturePlace, overflowsWhereTheBorderDoes)
{
    setCaption(L"&Open");
    ASSERT_EQ(button->put_BorderWidth(Variant::ofShort(2).get()), S_OK);
    kit::Called const put = kit::putByName(*button.dual(), L"BorderStyle", Variant::ofLong(0x7FFFFFFF));
    EXPECT_EQ(put.error(), kOverflow);
    ASSERT_EQ(button->put_BorderStyle(imgCmdBorderStyleConstants::Fixed), S_OK);
    expectAt(2 + kMargin, 14, kImage, 2);
}

class ImageOffset : public LoadedTest {
protected:
    ImageOffset()
    {
        setColorsOfEveryLook(button);
        EXPECT_EQ(button->put_OffsetPressed(VARIANT_TRUE), S_OK);
        EXPECT_EQ(button->putref_Image(pictureOf(kImage).get()), S_OK);
    }
    void expectMoved(int pixels)
    {
        Look look = plainLook(::GetFocus() == button.window() ? 2 : 1, button.caption());
        bool const named = !look.caption.empty();
        int const left = named ? 5 : (120 - kImage.width) / 2;
        look.shown = Shown{kImage, left + pixels, (40 - kImage.height) / 2 + pixels};
        look.captionLeft = left + kImage.width + 1;
        look.offset = pixels;
        EXPECT_EQ(differencesFrom(button, look), "");
    }
};
QV_BOTH_CLASSES(ImageOffset);

TEST_P(ImageOffset, isNoneAtRestAndUnderTheCursor)
{
    expectMoved(0);
    button.makeHot();
    expectMoved(0);
}

TEST_P(ImageOffset, isOnePixelWhilePressedWithAndWithoutCaption)
{
    button.makePressed();
    expectMoved(1);
    button.setCaption(L"&Press");
    expectMoved(1);
    button.leave();
    expectMoved(0);
}

TEST_P(ImageOffset, isOnePixelWhileChecked)
{
    button.setCaption(L"&Check");
    button.makeCheckButton();
    expectMoved(0);
    ASSERT_EQ(button->put_Checked(VARIANT_TRUE), S_OK);
    expectMoved(1);
    button.makeHot();
    expectMoved(1);
    ASSERT_EQ(button->put_Enabled(VARIANT_FALSE), S_OK);
    expectMoved(1);
}

TEST_P(ImageOffset, isTwoPixelsWhileACheckButtonIsPressedCheckedOrNot)
{
    button.setCaption(L"&Check");
    button.makeCheckButton();
    button.makePressed();
    expectMoved(2);
    ASSERT_EQ(button->put_Checked(VARIANT_TRUE), S_OK);
    expectMoved(2);
}

TEST_P(ImageOffset, isNoneWhereItIsSwitchedOff)
{
    ASSERT_EQ(button->put_OffsetPressed(VARIANT_FALSE), S_OK);
    button.setCaption(L"&Check");
    button.check();
    expectMoved(0);
    button.makePressed();
    expectMoved(0);
}

TEST_P(ImageOffset, needsNoUserWhileChecked)
{
    button.check();
    button.setUserMode(false);
    button.repaint();
    expectMoved(1);
}

TEST_P(ImageOffset, movesACentredCaptionAndOneWithoutPicture)
{
    ImageButton bare(library(), form, kind(), kPlaceBelow, L"Bare");
    bare.load();
    bare->put_OffsetPressed(VARIANT_TRUE);
    bare.check();
    setColorsOfEveryLook(bare);
    bare.setCaption(L"&Down");
    Look look = plainLook(1, L"&Down");
    look.offset = 1;
    EXPECT_EQ(differencesFrom(bare, look), "");
    bare->put_CentreCaption(VARIANT_TRUE);
    look.centred = true;
    EXPECT_EQ(differencesFrom(bare, look), "");
}

} // namespace
} // namespace quillet::image

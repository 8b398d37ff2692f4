// Where picture and caption stand, to the pixel, and how far they move while a button is pressed or checked.
#include "Look.h"
#include "kit/ByName.h"
#include "kit/Errors.h"
#include "kit/Fonts.h"
#include "kit/Input.h"
#include "kit/Memory.h"
#include "kit/Pump.h"

#include <cmath>

namespace quillet::image {
namespace {

constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr int kMargin = 4;
constexpr int kGap = 1;

class ImagePicturePlace : public ImageTest {
protected:
    ImageButton button{library(), form, kind()};

    void SetUp() override
    {
        ImageTest::SetUp();
        button.load();
        button->put_ForeColor(kFore);
        button->put_BackColor(kBack);
        button->put_LightBorderColor(kLight);
        button->put_DarkBorderColor(kDark);
        ASSERT_EQ(button->putref_Image(pictureOf(kImage).get()), S_OK);
    }
    void setCaption(wchar_t const* text) { button.setCaption(text); }
    void resize(int width, int height)
    {
        button.site().position = {20, 30, 20 + width, 30 + height};
        ASSERT_EQ(
            button.as<IOleInPlaceObject>()->SetObjectRects(&button.site().position, &button.site().clip),
            S_OK);
        kit::pumpPending();
    }
    Look look(int border = 1) const { return {kFore, kBack, kLight, kDark, border}; }
    /// The picture stands there, and the caption, if there is one, beside it.
    void expectAt(int left, int top, Plain const& picture = kImage, int border = 1)
    {
        Look expected = look(border);
        expected.caption = button.caption();
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
    ASSERT_EQ(button->put_BorderWidth(Variant::ofShort(3).get()), S_OK);
    ASSERT_EQ(button->put_HotBorderWidth(Variant::ofShort(5).get()), S_OK);
    expectAt(3 + kMargin, 14, kImage, 3);
    button->put_HotForeColor(kFore);
    button->put_HotBackColor(kBack);
    button->put_HotLightBorderColor(kLight);
    button->put_HotDarkBorderColor(kDark);
    button.makeHot();
    expectAt(3 + kMargin, 14, kImage, 5);
    button.leave();
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
    ASSERT_EQ(button->put_BorderWidth(Variant::ofShort(5).get()), S_OK);
    ASSERT_EQ(button->put_BorderStyle(imgCmdBorderStyleConstants::None), S_OK);
    expectAt(kMargin, 14, kImage, 0);
}

TEST_P(ImagePicturePlace, countsTheStyleAsAFactor)
{
    setCaption(L"&Open");
    ASSERT_EQ(button->put_BorderWidth(Variant::ofShort(5).get()), S_OK);
    ASSERT_EQ(button->put_BorderStyle(imgCmdBorderStyleConstants::Sunken), S_OK);
    expectAt(2 * 5 + kMargin, 14, kImage, 0);
}

TEST_P(ImagePicturePlace, leavesACentredCaptionWhereItIs)
{
    setCaption(L"&Go");
    ASSERT_EQ(button->put_CentreCaption(VARIANT_TRUE), S_OK);
    Look expected = look();
    expected.caption = L"&Go";
    expected.centred = true;
    expected.shown = Shown{kImage, 1 + kMargin, 14};
    EXPECT_EQ(differencesFrom(button, expected), "");
}

TEST_P(ImagePicturePlace, liesOverTheCaption)
{
    setCaption(L"MMMMMMMMMMMMMMMMMMMMMMMM");
    ASSERT_EQ(button->put_CentreCaption(VARIANT_TRUE), S_OK);
    Look expected = look();
    expected.caption = button.caption();
    expected.centred = true;
    expected.shown = Shown{kImage, 1 + kMargin, 14};
    EXPECT_EQ(differencesFrom(button, expected), "");
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
    ImageButton bare(library(), form, kind(), {20, 80, 140, 120}, L"Bare");
    bare.load();
    bare->put_CaptionIndent(7);
    ASSERT_EQ(bare->putref_HotImage(pictureOf(kHot).get()), S_OK);
    for (auto const put : {&_qvImageCommand::put_ForeColor, &_qvImageCommand::put_HotForeColor})
        (bare.dual()->*put)(kFore);
    for (auto const put : {&_qvImageCommand::put_BackColor, &_qvImageCommand::put_HotBackColor})
        (bare.dual()->*put)(kBack);
    for (auto const put : {&_qvImageCommand::put_LightBorderColor, &_qvImageCommand::put_HotLightBorderColor})
        (bare.dual()->*put)(kLight);
    for (auto const put : {&_qvImageCommand::put_DarkBorderColor, &_qvImageCommand::put_HotDarkBorderColor})
        (bare.dual()->*put)(kDark);
    bare.setCaption(L"&Open");
    Look expected = look();
    expected.caption = L"&Open";
    expected.captionLeft = 1 + 7;
    EXPECT_EQ(differencesFrom(bare, expected), "");
    bare.makeHot();
    expected.captionLeft = 1 + kMargin + kHot.width + kGap;
    expected.shown = Shown{kHot, 1 + kMargin, middle(40, kHot.height)};
    EXPECT_EQ(differencesFrom(bare, expected), "");
    bare.leave();
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

class ImageOffset : public ImageTest {
protected:
    ImageButton button{library(), form, kind()};

    void SetUp() override
    {
        ImageTest::SetUp();
        button.load();
        for (auto const put :
             {&_qvImageCommand::put_ForeColor, &_qvImageCommand::put_HotForeColor,
              &_qvImageCommand::put_PressedForeColor, &_qvImageCommand::put_DisabledForeColor})
            (button.dual()->*put)(kFore);
        for (auto const put :
             {&_qvImageCommand::put_BackColor, &_qvImageCommand::put_HotBackColor,
              &_qvImageCommand::put_PressedBackColor, &_qvImageCommand::put_CheckedBackColor})
            (button.dual()->*put)(kBack);
        for (auto const put :
             {&_qvImageCommand::put_LightBorderColor, &_qvImageCommand::put_HotLightBorderColor,
              &_qvImageCommand::put_PressedLightBorderColor, &_qvImageCommand::put_CheckedLightBorderColor})
            (button.dual()->*put)(kLight);
        for (auto const put :
             {&_qvImageCommand::put_DarkBorderColor, &_qvImageCommand::put_HotDarkBorderColor,
              &_qvImageCommand::put_PressedDarkBorderColor, &_qvImageCommand::put_CheckedDarkBorderColor})
            (button.dual()->*put)(kDark);
        ASSERT_EQ(button->put_OffsetPressed(VARIANT_TRUE), S_OK);
        ASSERT_EQ(button->putref_Image(pictureOf(kImage).get()), S_OK);
    }
    void expectMoved(int pixels)
    {
        Look look{kFore, kBack, kLight, kDark, ::GetFocus() == button.window() ? 2 : 1};
        look.caption = button.caption();
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
    button.leave();
}

TEST_P(ImageOffset, isNoneWhereItIsSwitchedOff)
{
    ASSERT_EQ(button->put_OffsetPressed(VARIANT_FALSE), S_OK);
    button.setCaption(L"&Check");
    button.makeCheckButton();
    ASSERT_EQ(button->put_Checked(VARIANT_TRUE), S_OK);
    expectMoved(0);
    button.makePressed();
    expectMoved(0);
    button.leave();
}

TEST_P(ImageOffset, needsNoUserWhileChecked)
{
    button.makeCheckButton();
    ASSERT_EQ(button->put_Checked(VARIANT_TRUE), S_OK);
    button.setUserMode(false);
    button.repaint();
    expectMoved(1);
}

TEST_P(ImageOffset, movesACentredCaptionAndOneWithoutPicture)
{
    ImageButton bare(library(), form, kind(), {20, 80, 140, 120}, L"Bare");
    bare.load();
    bare->put_OffsetPressed(VARIANT_TRUE);
    bare->put_CheckButton(VARIANT_TRUE);
    bare->put_Checked(VARIANT_TRUE);
    bare->put_ForeColor(kFore);
    bare->put_CheckedBackColor(kBack);
    bare->put_CheckedLightBorderColor(kLight);
    bare->put_CheckedDarkBorderColor(kDark);
    bare.setCaption(L"&Down");
    Look look{kFore, kBack, kLight, kDark};
    look.caption = L"&Down";
    look.offset = 1;
    EXPECT_EQ(differencesFrom(bare, look), "");
    bare->put_CentreCaption(VARIANT_TRUE);
    look.centred = true;
    EXPECT_EQ(differencesFrom(bare, look), "");
}

} // namespace
} // namespace quillet::image

// How far picture and caption move while a button is pressed or checked.
#include "Face.h"
#include "kit/Input.h"
#include "kit/Pump.h"

namespace quillet::image {
namespace {

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
        Face face{kFore, kBack, kLight, kDark, ::GetFocus() == button.window() ? 2 : 1};
        face.caption = button.caption();
        bool const named = !face.caption.empty();
        int const left = named ? 5 : (120 - kImage.width) / 2;
        face.shown = Shown{kImage, left + pixels, (40 - kImage.height) / 2 + pixels};
        face.captionLeft = left + kImage.width + 1;
        face.offset = pixels;
        EXPECT_EQ(differencesFrom(button, face), "");
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
    Face face{kFore, kBack, kLight, kDark};
    face.caption = L"&Down";
    face.offset = 1;
    EXPECT_EQ(differencesFrom(bare, face), "");
    bare->put_CentreCaption(VARIANT_TRUE);
    face.centred = true;
    EXPECT_EQ(differencesFrom(bare, face), "");
}

} // namespace
} // namespace quillet::image

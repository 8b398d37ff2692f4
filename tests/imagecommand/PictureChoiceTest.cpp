// Which of its pictures a button shows.
#include "Face.h"
#include "kit/Input.h"
#include "kit/Pump.h"

namespace quillet::image {
namespace {

class ImagePictureChoice : public ImageTest {
protected:
    ImageButton button{library(), form, kind()};

    void SetUp() override
    {
        ImageTest::SetUp();
        button.load();
        ASSERT_EQ(button->putref_Image(pictureOf(kImage).get()), S_OK);
    }
    void setDisabled() { EXPECT_EQ(button->putref_DisabledImage(pictureOf(kDisabled).get()), S_OK); }
    void setHot() { EXPECT_EQ(button->putref_HotImage(pictureOf(kHot).get()), S_OK); }
    void setPressed() { EXPECT_EQ(button->putref_PressedImage(pictureOf(kPressed).get()), S_OK); }
    void setAll()
    {
        setDisabled();
        setHot();
        setPressed();
    }
    void check()
    {
        button.makeCheckButton();
        EXPECT_EQ(button->put_Checked(VARIANT_TRUE), S_OK);
    }
    /// The middle of the button shows the picture's colour.
    void expectShown(Plain const& picture)
    {
        SIZE const size = button.size();
        EXPECT_EQ(pixelAt(button, size.cx / 2, size.cy / 2), picture.color);
    }
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
    button.leave();
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
    check();
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
    check();
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
    check();
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
    check();
    ASSERT_EQ(button->put_Active(VARIANT_FALSE), S_OK);
    button.makeHot();
    expectShown(kImage);
    ASSERT_EQ(button->put_Enabled(VARIANT_FALSE), S_OK);
    expectShown(kImage);
}

TEST_P(ImagePictureChoice, passesOverPicturesThatAreEmpty)
{
    ImageButton fresh(library(), form, kind(), {20, 80, 140, 120}, L"Fresh");
    fresh.start(); // its pictures are empty objects
    ASSERT_EQ(fresh->putref_Image(pictureOf(kImage).get()), S_OK);
    fresh.makeHot();
    EXPECT_EQ(pixelAt(fresh, 60, 20), kImage.color);
    fresh.leave();
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
    ImageButton bare(library(), form, kind(), {20, 80, 140, 120}, L"Bare");
    bare.load();
    ASSERT_EQ(bare->putref_HotImage(pictureOf(kHot).get()), S_OK);
    EXPECT_EQ(pixelAt(bare, 60, 20), ::GetSysColor(COLOR_BTNFACE));
    bare.makeHot();
    EXPECT_EQ(pixelAt(bare, 60, 20), kHot.color);
    bare.leave();
}

} // namespace
} // namespace quillet::image

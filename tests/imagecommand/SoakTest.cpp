// Many buttons with pictures one after another, and many paints of one, leave nothing behind.
#include "ImageButton.h"
#include "Pictures.h"
#include "kit/UiThread.h"
#include "kit/Usage.h"

namespace quillet::image {
namespace {

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

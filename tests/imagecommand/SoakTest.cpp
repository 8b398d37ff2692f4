// Many buttons with pictures one after another, and many paints of one, leave nothing behind.
#include "Mouse.h"
#include "Pictures.h"
#include "kit/Fonts.h"
#include "kit/UiThread.h"
#include "kit/Usage.h"

namespace quillet::image {
namespace {

// Far below one handle, or the smallest block, a round.
constexpr int kHandlesAtRandom = 40;
constexpr size_t kBytesAtRandom = 2048;
constexpr int kRounds = 200;
constexpr int kWarmUp = 20; // until caches of the system's have what they keep

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
    void expectFlat(kit::Usage const& before, kit::Usage const& after)
    {
        EXPECT_EQ(after.windows, before.windows);
        EXPECT_LE(after.window, before.window + kHandlesAtRandom);
        EXPECT_LE(after.gdi, before.gdi + kHandlesAtRandom);
        EXPECT_LE(after.bytes, before.bytes + kBytesAtRandom);
    }
};
QV_BOTH_CLASSES(ImageSoak);

TEST_P(ImageSoak, ofTwoHundredLivesLeavesNothingBehind)
{
    kit::onNewThread([&] {
        kit::FakeForm own;
        kit::Usage before{};
        for (int i = 0; i < kRounds; ++i) {
            if (i == kWarmUp)
                before = kit::Usage::now();
            ImageButton button(library(), own, kind());
            button.load();
            setPictures(button);
            button.setCaption(L"&Soaked");
            EXPECT_EQ(button->put_AutoSizeWidth(VARIANT_TRUE), S_OK);
            EXPECT_EQ(button->put_Enabled(VARIANT_FALSE), S_OK);
            button.remove();
            own.record().forget();
        }
        expectFlat(before, kit::Usage::now());
    });
}

TEST_P(ImageSoak, ofThousandsOfPaintsInEveryLookLeavesNothingBehind)
{
    kit::onNewThread([&] {
        kit::FakeForm own;
        ImageButton button(library(), own, kind());
        button.load();
        setPictures(button);
        kit::Usage before{};
        for (int i = 0; i < kRounds * 10; ++i) {
            if (i == kWarmUp * 10)
                before = kit::Usage::now();
            EXPECT_EQ(button->put_Enabled(i % 2 ? VARIANT_TRUE : VARIANT_FALSE), S_OK);
            button->DrawButton();
            button.events().forget();
            button.changes().take();
            own.record().forget();
        }
        expectFlat(before, kit::Usage::now());
    });
}

} // namespace
} // namespace quillet::image

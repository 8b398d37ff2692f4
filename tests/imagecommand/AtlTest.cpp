// Image buttons in the system's own host, which has neither ambient properties nor an extender.
#include "Mouse.h"
#include "Pictures.h"
#include "kit/Canvas.h"
#include "kit/Errors.h"
#include "kit/Painter.h"

namespace quillet::image {
namespace {

class ImageAtl : public ImageInputTest {
protected:
    COLORREF pixelAt(int x, int y)
    {
        RECT client{};
        ::GetClientRect(button().window(), &client);
        kit::Canvas shown(client.right, client.bottom);
        kit::readWindow(button().window(), shown);
        return shown.at(x, y);
    }
    int width()
    {
        RECT client{};
        ::GetClientRect(button().window(), &client);
        return client.right;
    }
};
INSTANTIATE_TEST_SUITE_P(Of, ImageAtl,
                         testing::Combine(testing::Values(&imageCommand(), &toolButton()),
                                          testing::Values(HostKind::AtlAxWin)),
                         [](auto const& tested) { return std::string(std::get<0>(tested.param)->name); });

TEST_P(ImageAtl, showTheirPicturesInEveryLook)
{
    ASSERT_EQ(button()->putref_Image(pictureOf(kImage).get()), S_OK);
    ASSERT_EQ(button()->putref_HotImage(pictureOf(kHot).get()), S_OK);
    ASSERT_EQ(button()->putref_PressedImage(pictureOf(kPressed).get()), S_OK);
    ASSERT_EQ(button()->putref_DisabledImage(pictureOf(kDisabled).get()), S_OK);
    EXPECT_EQ(pixelAt(60, 20), kImage.color);
    button().moveTo(kInside);
    EXPECT_EQ(pixelAt(60, 20), kHot.color);
    button().press();
    EXPECT_EQ(pixelAt(60, 20), kPressed.color);
    button().release();
    button().moveTo(kBeside);
    EXPECT_EQ(pixelAt(60, 20), kImage.color);
    ASSERT_EQ(button()->put_Enabled(VARIANT_FALSE), S_OK);
    EXPECT_EQ(pixelAt(60, 20), kDisabled.color);
}

TEST_P(ImageAtl, runWithoutAmbientProperties)
{
    VARIANT_BOOL running = VARIANT_FALSE;
    EXPECT_EQ(button()->InUserMode(&running), S_OK);
    EXPECT_EQ(running, VARIANT_TRUE);
    EXPECT_EQ(button()->putref_Image(emptyPicture().get()), kInvalidPicture);
}

TEST_P(ImageAtl, keepTheirWidthWhereNobodyChangesIt)
{
    ASSERT_EQ(button()->put_AutoSizeWidth(VARIANT_TRUE), S_OK);
    ASSERT_EQ(button()->put_Caption(Bstr(L"A caption of some length").get()), S_OK);
    EXPECT_EQ(width(), kPlace.right - kPlace.left);
}

TEST_P(ImageAtl, showACheckedButtonAndItsPressedPicture)
{
    ASSERT_EQ(button()->putref_Image(pictureOf(kImage).get()), S_OK);
    ASSERT_EQ(button()->putref_PressedImage(pictureOf(kPressed).get()), S_OK);
    ASSERT_EQ(button()->put_CheckButton(VARIANT_TRUE), S_OK);
    button().moveTo(kInside);
    button().press();
    button().release();
    button().moveTo(kBeside);
    EXPECT_TRUE(button().isChecked());
    EXPECT_EQ(pixelAt(60, 20), kPressed.color);
}

} // namespace
} // namespace quillet::image

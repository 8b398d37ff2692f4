// Image buttons in other hosts: the system's own, which has no ambient properties, and a form in design mode.
#include "Look.h"
#include "Mouse.h"
#include "kit/Errors.h"

namespace quillet::image {
namespace {

class ImageAtl : public ImageInputTest {
protected:
    void expectColor(COLORREF color) { EXPECT_EQ(pixelAt(button(), 60, 20), color); }
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
    expectColor(kImage.color);
    button().moveTo(kInside);
    expectColor(kHot.color);
    button().press();
    expectColor(kPressed.color);
    button().release();
    button().moveTo(kBeside);
    expectColor(kImage.color);
    ASSERT_EQ(button()->put_Enabled(VARIANT_FALSE), S_OK);
    expectColor(kDisabled.color);
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
    EXPECT_EQ(kit::Canvas(button().window()).width(), kPlace.right - kPlace.left);
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
    expectColor(kPressed.color);
}

class ImageDesign : public ImageTest {
protected:
    ImageButton button{library(), form, kind()};

    ImageDesign()
    {
        button.site().setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofBool(false));
        button.load();
        button.forget();
    }
    Look resting() const
    {
        COLORREF const edge = ::GetSysColor(kind().isTool ? COLOR_3DLIGHT : COLOR_3DDKSHADOW);
        return {::GetSysColor(COLOR_BTNTEXT), ::GetSysColor(COLOR_BTNFACE), edge, edge, 1, button.caption()};
    }
};
QV_BOTH_CLASSES(ImageDesign);

TEST_P(ImageDesign, raisesNothingTakesNoCaptureAndShowsTheNormalLook)
{
    button.makeHot();
    EXPECT_EQ(differencesFrom(button, resting()), "");
    for (UINT const message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP, WM_RBUTTONDOWN})
        ::SendMessageW(button.window(), message, 0, MAKELPARAM(60, 20));
    ::SendMessageW(button.window(), WM_CHAR, L' ', 0);
    kit::invoke(*button.dual(), DISPID_DOCLICK, DISPATCH_METHOD);
    EXPECT_THAT(button.events().ids(), IsEmpty());
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_P(ImageDesign, hearsNoAccessKey)
{
    button.setCaption(L"&Save");
    kit::pressAccessKey(button.object(), L's');
    EXPECT_THAT(button.events().ids(), IsEmpty());
}

TEST_P(ImageDesign, togglesNothing)
{
    button.makeCheckButton();
    ::SendMessageW(button.window(), WM_LBUTTONUP, 0, MAKELPARAM(60, 20));
    EXPECT_FALSE(button.isChecked());
}

TEST_P(ImageDesign, showsADisabledButtonAtRest)
{
    button.setCaption(L"&Off");
    ASSERT_EQ(button->put_Enabled(VARIANT_FALSE), S_OK);
    EXPECT_EQ(differencesFrom(button, resting()), "");
}

TEST_P(ImageDesign, paintsWhenItIsShownAndWhenItsSizeChanges)
{
    button.place({20, 30, 180, 90});
    EXPECT_EQ(button.size().cx, 160);
    EXPECT_EQ(differencesFrom(button, resting()), "");
}

TEST_P(ImageDesign, atRunTimeShowingAndResizingEachPaint)
{
    button.setUserMode(true);
    button.forget();
    button.place({20, 30, 180, 90});
    EXPECT_GE(button.paints(), 1) << "before any message was handled";
    button.forget();
    EXPECT_EQ(button.doVerb(OLEIVERB_HIDE), S_OK);
    button.events().forget();
    EXPECT_EQ(button.doVerb(OLEIVERB_SHOW), S_OK);
    EXPECT_GE(button.paints(), 1);
}

} // namespace
} // namespace quillet::image

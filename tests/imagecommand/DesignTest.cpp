// An image button on a form in design mode: it only paints.
#include "Face.h"
#include "kit/ByName.h"
#include "kit/Input.h"
#include "kit/Pump.h"

namespace quillet::image {
namespace {

using testing::IsEmpty;

class ImageDesign : public ImageTest {
protected:
    ImageButton button{library(), form, kind()};

    void SetUp() override
    {
        ImageTest::SetUp();
        button.site().setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofBool(false));
        button.load();
        button.forget();
    }
    Face resting() const
    {
        COLORREF const edge = ::GetSysColor(kind().isTool ? COLOR_3DLIGHT : COLOR_3DDKSHADOW);
        return {::GetSysColor(COLOR_BTNTEXT), ::GetSysColor(COLOR_BTNFACE), edge, edge};
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
    MSG message{};
    message.hwnd = form.window();
    message.message = WM_SYSCHAR;
    message.wParam = L's';
    button.as<IOleControl>()->OnMnemonic(&message);
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
    Face face = resting();
    face.caption = L"&Off";
    EXPECT_EQ(differencesFrom(button, face), "");
}

TEST_P(ImageDesign, paintsWhenItIsShownAndWhenItsSizeChanges)
{
    button.site().position = {20, 30, 180, 90};
    ASSERT_EQ(button.as<IOleInPlaceObject>()->SetObjectRects(&button.site().position, &button.site().clip),
              S_OK);
    EXPECT_EQ(button.size().cx, 160);
    EXPECT_EQ(differencesFrom(button, resting()), "");
}

TEST_P(ImageDesign, atRunTimeShowingAndResizingEachPaint)
{
    button.setUserMode(true);
    button.forget();
    button.site().position = {20, 30, 180, 90};
    button.as<IOleInPlaceObject>()->SetObjectRects(&button.site().position, &button.site().clip);
    EXPECT_GE(button.paints(), 1) << "before any message was handled";
    button.forget();
    EXPECT_EQ(button.doVerb(OLEIVERB_HIDE), S_OK);
    button.events().forget();
    EXPECT_EQ(button.doVerb(OLEIVERB_SHOW), S_OK);
    EXPECT_GE(button.paints(), 1);
}

} // namespace
} // namespace quillet::image

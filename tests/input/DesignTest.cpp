// A flat command button on a form in design mode: it only paints.
#include "Button.h"
#include "kit/ByName.h"
#include "kit/Pump.h"

#include <ole2.h>
#include <olectl.h>

namespace quillet::input {
namespace {

using testing::ElementsAreArray;
using testing::IsEmpty;

class DesignMode : public FormTest {
protected:
    void SetUp() override
    {
        FormTest::SetUp();
        setUserMode(false);
        button.start();
        ASSERT_TRUE(kit::focus(button.window()));
        kit::pumpPending();
    }
    void setUserMode(bool running)
    {
        button.site().setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofBool(running));
    }
    /// Waits until the button's window has had a move to the point.
    void move(POINT to)
    {
        EXPECT_TRUE(actUntilHandled(WM_MOUSEMOVE, [&] { kit::moveCursorTo(button.window(), to.x, to.y); }));
    }
    void press()
    {
        EXPECT_TRUE(actUntilHandled(WM_LBUTTONDOWN, [] { kit::press(kit::MouseButton::Left); }));
    }
    void release()
    {
        EXPECT_TRUE(actUntilHandled(WM_LBUTTONUP, [] { kit::release(kit::MouseButton::Left); }));
    }
};

TEST_F(DesignMode, noEventIsRaisedAndTheStateIsAlwaysNormal)
{
    move(kInside);
    EXPECT_EQ(button.look(), "normal");
    EXPECT_EQ(::GetCapture(), nullptr);
    press();
    EXPECT_EQ(button.look(), "normal");
    release();
    EXPECT_TRUE(actUntilHandled(WM_LBUTTONDBLCLK, [] { kit::press(kit::MouseButton::Left); }));
    release();
    move(kBeside);
    EXPECT_EQ(button->Refresh(), S_OK);
    EXPECT_EQ(button->put_Enabled(VARIANT_FALSE), S_OK);
    EXPECT_EQ(button.look(), "normal") << "the Paint handler sets the normal state";
    EXPECT_EQ(button->put_Enabled(VARIANT_TRUE), S_OK);
    EXPECT_TRUE(kit::focus(button.window()));
    typed(button, VK_SPACE);
    MSG key{};
    key.message = WM_SYSCHAR;
    key.wParam = 'M';
    EXPECT_EQ(button.as<IOleControl>()->OnMnemonic(&key), S_OK);
    kit::invoke(*button.operator->(), DISPID_DOCLICK, DISPATCH_METHOD);
    ::SetFocus(form.window());
    kit::focus(button.window());
    ::InvalidateRect(button.window(), nullptr, TRUE);
    kit::pumpPending();
    EXPECT_EQ(button.look(), "normal");
    EXPECT_THAT(button.events().ids(), IsEmpty());
}

TEST_F(DesignMode, theToolTipTextIsNotTakenFromTheExtender)
{
    button.extender().offer(L"ToolTipText", Variant::ofString(L"the extender's"));
    EXPECT_EQ(button->put_ToolTipText(Bstr(L"own").get()), S_OK);
    move(kInside);
    Bstr text;
    EXPECT_EQ(button->get_ToolTipText(text.put()), S_OK);
    EXPECT_EQ(text.view(), L"own");
}

TEST_F(DesignMode, theSurfaceIsStillPainted)
{
    EXPECT_EQ(button->put_BackColor(RGB(16, 160, 32)), S_OK);
    form.record().forget();
    RECT client;
    ::GetClientRect(button.window(), &client);
    WindowDc const dc(button.window());
    UniqueBrush const black(::CreateSolidBrush(0));
    ::FillRect(dc.get(), &client, black.get());
    ASSERT_NE(button.look(), "normal");
    EXPECT_EQ(button->Refresh(), S_OK);
    EXPECT_EQ(button.look(), "normal");
}

// The last over flag shows itself as soon as the form runs: a move with the left button down repaints only
// when "over" has changed since the last move.
TEST_F(DesignMode, aMoveOverTheButtonIsStillRemembered)
{
    move(kInside);
    setUserMode(true);
    ::SetCapture(button.window());
    pressDown(button);
    EXPECT_THAT(moveInside(button, kInsideToo), ElementsAreArray({"MouseMove"}));
    letUp(button);
}

TEST_F(DesignMode, aMoveOffTheButtonIsStillRemembered)
{
    move(kInside);
    ::SetCapture(button.window());
    move(kBeside);
    setUserMode(true);
    EXPECT_TRUE(actUntilHandled(WM_LBUTTONDOWN, [] { kit::press(kit::MouseButton::Left); }));
    EXPECT_THAT(dragBack(button), ElementsAreArray({"Paint", "MouseMove"}));
    EXPECT_EQ(button.look(), "pressed");
    letUp(button);
}

TEST_F(DesignMode, aPressBegunWhileRunningShowsNothingOnceTheFormIsDesignedAgain)
{
    setUserMode(true);
    enterAndPress(button);
    ASSERT_EQ(button.look(), "pressed");
    setUserMode(false);
    button->Refresh();
    EXPECT_EQ(button.look(), "normal");
    button.events().forget();
    release();
    move(kBeside);
    EXPECT_THAT(button.events().ids(), IsEmpty());
}

} // namespace
} // namespace quillet::input

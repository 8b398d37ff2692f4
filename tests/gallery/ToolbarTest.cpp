// The tool bar form with its pictures, live: clicked, checked, and grown with its captions.
#include "gallery/Demo.h"
#include "gallery/host/HostedControl.h"
#include "gallery/host/LateBoundObject.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace quillet::gallery::test {
namespace {

using ::testing::Contains;
using ::testing::IsEmpty;

std::wstring const kToolbar = GALLERY_FORMS L"/toolbar.frm";

class Toolbar : public testing::Test {
protected:
    Demo demo{kToolbar, UserMode::Run};

    Variant get(wchar_t const* control, wchar_t const* member)
    {
        return getByName(demo.extender(control), member);
    }
    void put(wchar_t const* control, wchar_t const* member, Variant value)
    {
        IDispatch& extender = demo.extender(control);
        auto* name = const_cast<wchar_t*>(member);
        DISPID id = DISPID_UNKNOWN;
        ASSERT_EQ(extender.GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id), S_OK);
        DISPID assigned = DISPID_PROPERTYPUT;
        DISPPARAMS arguments{value.address(), &assigned, 1, 1};
        ASSERT_EQ(extender.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYPUT, &arguments,
                                  nullptr, nullptr, nullptr),
                  S_OK);
    }
    void click(wchar_t const* control)
    {
        HWND const window = demo.control(control).window();
        ::SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(8, 8));
        ::SendMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(8, 8));
    }
    LONG windowWidth(wchar_t const* control)
    {
        RECT client{};
        ::GetClientRect(demo.control(control).window(), &client);
        return client.right;
    }
    /// How many colours the control shows.
    std::size_t colors(wchar_t const* control)
    {
        HWND const window = demo.control(control).window();
        ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        RECT client{};
        ::GetClientRect(window, &client);
        WindowDc const dc(window);
        std::set<COLORREF> seen;
        for (int y = 0; y < client.bottom; ++y)
            for (int x = 0; x < client.right; ++x)
                seen.insert(::GetPixel(dc.get(), x, y));
        return seen.size();
    }
};

TEST_F(Toolbar, opensWithoutAWarningAndEveryControlIsLive)
{
    EXPECT_THAT(demo.warnings, IsEmpty());
    int live = 0;
    for (auto const& control : demo.form().controls())
        if (dynamic_cast<HostedControl*>(control.get())) {
            EXPECT_TRUE(control->window()) << narrow(control->state().name);
            ++live;
        }
    EXPECT_EQ(live, 37);
}

TEST_F(Toolbar, showsItsPicturesWithSoftEdges)
{
    demo.form().show();
    // Face, two edges and more than the few of hard-edged drawing.
    for (wchar_t const* const name : {L"tbNew", L"tbItalic", L"imgMail", L"imgStar", L"imgDisk"})
        EXPECT_GT(colors(name), 6U) << narrow(name);
}

TEST_F(Toolbar, aClickTurnsACheckButtonOnAndOffAndTheSpaceKeyDoesNot)
{
    ASSERT_FALSE(get(L"tbItalic", L"Checked").toBool());
    click(L"tbItalic");
    EXPECT_TRUE(get(L"tbItalic", L"Checked").toBool());
    EXPECT_THAT(demo.events, Contains("tbItalic.Click"));
    click(L"tbItalic");
    EXPECT_FALSE(get(L"tbItalic", L"Checked").toBool());
    demo.events.clear();
    ::SendMessageW(demo.control(L"tbItalic").window(), WM_CHAR, L' ', 0);
    EXPECT_THAT(demo.events, Contains("tbItalic.Click"));
    EXPECT_FALSE(get(L"tbItalic", L"Checked").toBool());
}

TEST_F(Toolbar, anAutoSizedButtonGrowsAndShrinksWithItsCaption)
{
    demo.form().show();
    long const before = get(L"imgMiddle", L"Width").toLong();
    put(L"imgMiddle", L"Caption", Variant::ofString(L"A much longer caption than before"));
    long const wide = get(L"imgMiddle", L"Width").toLong();
    EXPECT_GT(wide, before);
    WindowDc const screen(nullptr);
    EXPECT_EQ(windowWidth(L"imgMiddle"), ::MulDiv(wide, ::GetDeviceCaps(screen.get(), LOGPIXELSX), 1440));
    put(L"imgMiddle", L"Caption", Variant::ofString(L""));
    EXPECT_LT(get(L"imgMiddle", L"Width").toLong(), before);
    long const fixed = get(L"imgFixed", L"Width").toLong();
    put(L"imgFixed", L"Caption", Variant::ofString(L"A much longer caption than before"));
    EXPECT_EQ(get(L"imgFixed", L"Width").toLong(), fixed);
}

TEST_F(Toolbar, escPressesTheCancelButtonAndAnAccessKeyItsOwn)
{
    demo.focusOn(L"imgPictures");
    demo.key(WM_KEYDOWN, VK_ESCAPE);
    EXPECT_THAT(demo.events, Contains("imgCancel.Click"));
    ::RedrawWindow(demo.control(L"tbFind").window(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    demo.key(WM_SYSCHAR, 'f');
    EXPECT_THAT(demo.events, Contains("tbFind.Click"));
}

} // namespace
} // namespace quillet::gallery::test

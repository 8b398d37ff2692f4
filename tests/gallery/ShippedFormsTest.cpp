// Two shipped forms, live: the option buttons worked with real keys alone, and the tool bar with its
// pictures.
#include "gallery/FormKit.h"
#include "gallery/host/Extender.h"
#include "gallery/host/HostedControl.h"
#include "gallery/host/LateBoundObject.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace quillet::gallery::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class OptionForm : public testing::Test {
protected:
    OptionForm()
    {
        ::SetCursorPos(0, 0);
        demo.form().show();
        demo.pump();
    }

    long value(wchar_t const* name) { return getByName(demo.extender(name), L"Value").toLong(); }
    std::vector<long> sizes()
    {
        return {value(L"optSmall"), value(L"optMedium"), value(L"optLarge"), value(L"optHuge")};
    }
    std::vector<long> colours()
    {
        return {value(L"optRed"), value(L"optGreen"), value(L"optBlue"), value(L"optGrey")};
    }
    std::vector<long> deliveries()
    {
        return {value(L"optPost"), value(L"optCourier"), value(L"optFetch"), value(L"optPigeon")};
    }
    std::string active()
    {
        FormControl const* const control = demo.form().focus().active();
        return control ? narrow(control->state().name) : "";
    }
    /// Types a key, with another one held, through the form's own keyboard rules.
    void type(BYTE key, BYTE held = 0)
    {
        typeKey(key, held);
        bool up = false;
        WPARAM const last = held ? held : key;
        for (ULONGLONG const end = ::GetTickCount64() + 5000; !up && ::GetTickCount64() < end;) {
            ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
            MSG message;
            while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
                up = up || ((message.message == WM_KEYUP || message.message == WM_SYSKEYUP) &&
                            (message.wParam == last || (held == VK_MENU && message.wParam == VK_MENU)));
                if (demo.form().translate(message))
                    continue;
                ::TranslateMessage(&message);
                ::DispatchMessageW(&message);
            }
        }
        EXPECT_TRUE(up) << "the key did not come";
    }
    int clicks(std::string const& name)
    {
        return static_cast<int>(std::count(demo.events.begin(), demo.events.end(), name + ".Click"));
    }

    Demo demo{formFile(L"options.frm"), UserMode::Run};
};

TEST_F(OptionForm, opensWithoutAWarningAndWithItsChoices)
{
    EXPECT_THAT(demo.warnings, IsEmpty());
    EXPECT_THAT(sizes(), ElementsAre(0, 1, 0, 0));
    EXPECT_THAT(colours(), ElementsAre(0, 0, 1, 0));
    EXPECT_THAT(deliveries(), ElementsAre(0, -1, 0, 0));
    EXPECT_EQ(value(L"chkGift"), 0);
    EXPECT_EQ(value(L"chkCard"), 1);
    EXPECT_EQ(value(L"chkNews"), 2);
}

TEST_F(OptionForm, tabReachesTheChosenOptionOfEachFrameAndEachCheckBox)
{
    std::vector<std::string> visited = {active()};
    for (int i = 0; i < 12; ++i) {
        type(VK_TAB);
        visited.push_back(active());
    }
    EXPECT_THAT(visited, ElementsAre("optMedium", "optBlue", "optCourier", "chkGift", "chkCard", "chkNews",
                                     "chkExpress", "chkInsured", "chkLong", "chkPlain", "chkPlainSet",
                                     "cmdOrder", "optMedium"));
    EXPECT_THAT(sizes(), ElementsAre(0, 1, 0, 0)); // passing by chooses nothing
}

TEST_F(OptionForm, chosenOptionAloneIsATabStopOfItsFrame)
{
    std::vector<bool> stops;
    for (wchar_t const* name : {L"optSmall", L"optMedium", L"optLarge"})
        stops.push_back(getByName(demo.extender(name), L"TabStop").toBool());
    EXPECT_THAT(stops, ElementsAre(false, true, false));
    type(VK_DOWN);
    stops.clear();
    for (wchar_t const* name : {L"optSmall", L"optMedium", L"optLarge"})
        stops.push_back(getByName(demo.extender(name), L"TabStop").toBool());
    EXPECT_THAT(stops, ElementsAre(false, false, true));
}

TEST_F(OptionForm, arrowKeysChooseAmongTheOptionsOfAFrame)
{
    demo.events.clear();
    type(VK_DOWN);
    EXPECT_EQ(active(), "optLarge");
    EXPECT_THAT(sizes(), ElementsAre(0, 0, 1, 0));
    EXPECT_EQ(clicks("optLarge"), 1);
    type(VK_DOWN); // past the disabled one, round the end
    EXPECT_EQ(active(), "optSmall");
    EXPECT_THAT(sizes(), ElementsAre(1, 0, 0, 0));
    type(VK_UP);
    EXPECT_EQ(active(), "optLarge");
    EXPECT_THAT(colours(), ElementsAre(0, 0, 1, 0));
    EXPECT_THAT(deliveries(), ElementsAre(0, -1, 0, 0));
}

TEST_F(OptionForm, arrowKeysStayAmongThePlainOptionsOfTheirFrame)
{
    type(VK_TAB);
    type(VK_TAB);
    EXPECT_EQ(active(), "optCourier");
    type(VK_RIGHT);
    EXPECT_THAT(deliveries(), ElementsAre(0, 0, -1, 0));
    EXPECT_THAT(sizes(), ElementsAre(0, 1, 0, 0));
    EXPECT_THAT(colours(), ElementsAre(0, 0, 1, 0));
}

TEST_F(OptionForm, accessKeysChooseAndTurnRound)
{
    demo.events.clear();
    type('R', VK_MENU);
    EXPECT_EQ(active(), "optRed");
    EXPECT_THAT(colours(), ElementsAre(1, 0, 0, 0));
    EXPECT_EQ(clicks("optRed"), 1);
    type('I', VK_MENU);
    EXPECT_EQ(active(), "chkGift");
    EXPECT_EQ(value(L"chkGift"), 1);
    EXPECT_EQ(clicks("chkGift"), 1);
    type('N', VK_MENU);
    EXPECT_EQ(value(L"chkNews"), 0); // out of the third state
}

TEST_F(OptionForm, spaceTurnsACheckBoxRoundAndEnterPressesTheDefaultButton)
{
    for (int i = 0; i < 3; ++i)
        type(VK_TAB);
    EXPECT_EQ(active(), "chkGift");
    type(VK_SPACE);
    EXPECT_EQ(value(L"chkGift"), 1);
    type(VK_SPACE);
    EXPECT_EQ(value(L"chkGift"), 0);
    demo.events.clear();
    type(VK_RETURN);
    EXPECT_EQ(clicks("cmdOrder"), 1);
    EXPECT_EQ(clicks("chkGift"), 0);
}

TEST_F(OptionForm, everyGroupKeepsOneChoiceThroughAWholeRound)
{
    for (BYTE const key :
         {BYTE{VK_DOWN}, BYTE{VK_TAB}, BYTE{VK_LEFT}, BYTE{VK_TAB}, BYTE{VK_UP}, BYTE{VK_TAB}})
        type(key);
    EXPECT_THAT(sizes(), ElementsAre(0, 0, 1, 0));
    EXPECT_THAT(colours(), ElementsAre(0, 1, 0, 0));
    EXPECT_THAT(deliveries(), ElementsAre(-1, 0, 0, 0));
}

std::wstring const kToolbar = formFile(L"toolbar.frm");

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

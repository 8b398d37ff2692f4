// Two shipped forms, live: the option buttons worked with real keys alone, and the tool bar with its
// pictures.
#include "gallery/FormKit.h"
#include "gallery/host/Extender.h"
#include "gallery/host/HostedControl.h"
#include "kit/Canvas.h"

#include <set>

namespace quillet::gallery::test {
namespace {

class OptionForm : public testing::Test {
protected:
    OptionForm()
    {
        ::SetCursorPos(0, 0);
        demo.form().show();
        demo.pump();
    }

    long value(wchar_t const* name) { return demo.get(name, L"Value").toLong(); }
    using Names = std::initializer_list<wchar_t const*>;
    std::vector<long> values(Names names)
    {
        std::vector<long> all;
        std::ranges::transform(names, std::back_inserter(all), [&](auto name) { return value(name); });
        return all;
    }
    std::vector<long> sizes() { return values({L"optSmall", L"optMedium", L"optLarge", L"optHuge"}); }
    std::vector<long> colours() { return values({L"optRed", L"optGreen", L"optBlue", L"optGrey"}); }
    std::vector<long> deliveries() { return values({L"optPost", L"optCourier", L"optFetch", L"optPigeon"}); }
    std::vector<bool> tabStops()
    {
        std::vector<bool> all;
        for (wchar_t const* const name : {L"optSmall", L"optMedium", L"optLarge"})
            all.push_back(demo.get(name, L"TabStop").toBool());
        return all;
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
    std::ptrdiff_t clicks(std::string const& name) const { return demo.count(name + ".Click"); }

    Demo demo{formFile(L"options.frm"), UserMode::Run};
};

TEST_F(OptionForm, opensWithoutAWarningAndWithItsChoices)
{
    EXPECT_THAT(demo.warnings, IsEmpty());
    EXPECT_THAT(sizes(), ElementsAreArray({0, 1, 0, 0}));
    EXPECT_THAT(colours(), ElementsAreArray({0, 0, 1, 0}));
    EXPECT_THAT(deliveries(), ElementsAreArray({0, -1, 0, 0}));
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
    EXPECT_THAT(visited, ElementsAreArray({"optMedium", "optBlue", "optCourier", "chkGift", "chkCard",
                                           "chkNews", "chkExpress", "chkInsured", "chkLong", "chkPlain",
                                           "chkPlainSet", "cmdOrder", "optMedium"}));
    EXPECT_THAT(sizes(), ElementsAreArray({0, 1, 0, 0})); // passing by chooses nothing
}

TEST_F(OptionForm, chosenOptionAloneIsATabStopOfItsFrame)
{
    EXPECT_THAT(tabStops(), ElementsAreArray({false, true, false}));
    type(VK_DOWN);
    EXPECT_THAT(tabStops(), ElementsAreArray({false, false, true}));
}

TEST_F(OptionForm, arrowKeysChooseAmongTheOptionsOfAFrame)
{
    demo.events.clear();
    type(VK_DOWN);
    EXPECT_EQ(active(), "optLarge");
    EXPECT_THAT(sizes(), ElementsAreArray({0, 0, 1, 0}));
    EXPECT_EQ(clicks("optLarge"), 1);
    type(VK_DOWN); // past the disabled one, round the end
    EXPECT_EQ(active(), "optSmall");
    EXPECT_THAT(sizes(), ElementsAreArray({1, 0, 0, 0}));
    type(VK_UP);
    EXPECT_EQ(active(), "optLarge");
    EXPECT_THAT(colours(), ElementsAreArray({0, 0, 1, 0}));
    EXPECT_THAT(deliveries(), ElementsAreArray({0, -1, 0, 0}));
}

TEST_F(OptionForm, arrowKeysStayAmongThePlainOptionsOfTheirFrame)
{
    type(VK_TAB);
    type(VK_TAB);
    EXPECT_EQ(active(), "optCourier");
    type(VK_RIGHT);
    EXPECT_THAT(deliveries(), ElementsAreArray({0, 0, -1, 0}));
    EXPECT_THAT(sizes(), ElementsAreArray({0, 1, 0, 0}));
    EXPECT_THAT(colours(), ElementsAreArray({0, 0, 1, 0}));
}

TEST_F(OptionForm, accessKeysChooseAndTurnRound)
{
    demo.events.clear();
    type('R', VK_MENU);
    EXPECT_EQ(active(), "optRed");
    EXPECT_THAT(colours(), ElementsAreArray({1, 0, 0, 0}));
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
    EXPECT_THAT(sizes(), ElementsAreArray({0, 0, 1, 0}));
    EXPECT_THAT(colours(), ElementsAreArray({0, 1, 0, 0}));
    EXPECT_THAT(deliveries(), ElementsAreArray({-1, 0, 0, 0}));
}

class Toolbar : public testing::Test {
protected:
    Demo demo{formFile(L"toolbar.frm"), UserMode::Run};

    bool isChecked(wchar_t const* control) { return demo.get(control, L"Checked").toBool(); }
    long width(wchar_t const* control) { return demo.get(control, L"Width").toLong(); }
    void setCaption(wchar_t const* control, wchar_t const* text)
    {
        putByName(demo.extender(control), L"Caption", Variant::ofString(text));
    }
    void click(wchar_t const* control)
    {
        HWND const window = demo.control(control).window();
        ::SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(8, 8));
        ::SendMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(8, 8));
    }
    /// How many colours the control shows.
    std::size_t colors(wchar_t const* control)
    {
        HWND const window = demo.control(control).window();
        ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        kit::Canvas const shown(window);
        std::set<COLORREF> seen;
        for (int y = 0; y < shown.height(); ++y)
            for (int x = 0; x < shown.width(); ++x)
                seen.insert(shown.at(x, y));
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
    ASSERT_FALSE(isChecked(L"tbItalic"));
    click(L"tbItalic");
    EXPECT_TRUE(isChecked(L"tbItalic"));
    EXPECT_THAT(demo.events, Contains("tbItalic.Click"));
    click(L"tbItalic");
    EXPECT_FALSE(isChecked(L"tbItalic"));
    demo.events.clear();
    ::SendMessageW(demo.control(L"tbItalic").window(), WM_CHAR, L' ', 0);
    EXPECT_THAT(demo.events, Contains("tbItalic.Click"));
    EXPECT_FALSE(isChecked(L"tbItalic"));
}

TEST_F(Toolbar, anAutoSizedButtonGrowsAndShrinksWithItsCaption)
{
    demo.form().show();
    long const before = width(L"imgMiddle");
    setCaption(L"imgMiddle", L"A much longer caption than before");
    long const wide = width(L"imgMiddle");
    EXPECT_GT(wide, before);
    WindowDc const screen(nullptr);
    EXPECT_EQ(kit::Canvas(demo.control(L"imgMiddle").window()).width(),
              ::MulDiv(wide, ::GetDeviceCaps(screen.get(), LOGPIXELSX), 1440));
    setCaption(L"imgMiddle", L"");
    EXPECT_LT(width(L"imgMiddle"), before);
    long const fixed = width(L"imgFixed");
    setCaption(L"imgFixed", L"A much longer caption than before");
    EXPECT_EQ(width(L"imgFixed"), fixed);
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

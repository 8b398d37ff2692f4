// Window messages of a subclassed control: what reaches its window's previous procedure, when and how.
#include "PlainControl.h"
#include "ServiceTest.h"
#include "kit/ByName.h"

#include <algorithm>

namespace quillet::winsvc {
namespace {

constexpr UINT kUnlisted = WM_APP + 7;

class Dispatch : public ButtonTest {
protected:
    std::unique_ptr<PreviousProcedure> previous;

    /// Starts the button in a window that has a procedure before it loads.
    void start()
    {
        ASSERT_EQ(button.hosted().setSite(), S_OK);
        previous = std::make_unique<PreviousProcedure>(windowOf(button));
        button.start();
        previous->seen.clear();
    }
    void TearDown() override
    {
        button.events().action = nullptr;
        button.remove();
    }
    HWND window() const { return button.window(); }
    long handle() const { return HandleToLong(window()); }
    LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return ::SendMessageA(window(), message, wParam, lParam);
    }
    void expectSeen(MSG const& seen, WPARAM wParam, LPARAM lParam) const
    {
        EXPECT_EQ(seen.hwnd, window());
        EXPECT_EQ(seen.message, kUnlisted);
        EXPECT_EQ(seen.wParam, wParam);
        EXPECT_EQ(seen.lParam, lParam);
    }
};

TEST_ON_NEW_THREAD(Dispatch, ofAnyOtherMessageIsThePreviousProceduresAndSoIsItsResult)
{
    start();
    ASSERT_NE(procedureOf(window()), previous->address());
    auto const wParam = static_cast<WPARAM>(0x89ABCDEF01234567LL);
    auto const lParam = static_cast<LPARAM>(0xFEDCBA9876543210LL);
    for (LRESULT const answer : {static_cast<LRESULT>(4711), static_cast<LRESULT>(-1),
                                 static_cast<LRESULT>(0), static_cast<LRESULT>(0x76543210FEDCBA98LL)}) {
        previous->seen.clear();
        previous->answer = answer;
        EXPECT_EQ(send(kUnlisted, wParam, lParam), answer);
        ASSERT_EQ(previous->seen.size(), 1U);
        expectSeen(previous->seen.front(), wParam, lParam);
    }
}

TEST_ON_NEW_THREAD(Dispatch, passesOnTheMessagesThatItHandlesToo)
{
    start();
    NMHDR header{theToolTipWindow(), 0, static_cast<UINT>(-520)};
    NMHDR other{form.window(), 5, static_cast<UINT>(-520)};
    button.extender().refuse(L"ToolTipText");
    struct Row {
        UINT message;
        WPARAM wParam;
        LPARAM lParam = MAKELPARAM(5, 5);
    };
    Row const rows[] = {{WM_MOUSEMOVE, 0},
                        {WM_LBUTTONDOWN, MK_LBUTTON},
                        {WM_LBUTTONUP, 0},
                        {WM_LBUTTONDBLCLK, MK_LBUTTON},
                        {WM_RBUTTONDOWN, MK_RBUTTON},
                        {WM_RBUTTONUP, 0},
                        {WM_RBUTTONDBLCLK, 0},
                        {WM_MBUTTONDOWN, MK_MBUTTON},
                        {WM_MBUTTONUP, 0},
                        {WM_MBUTTONDBLCLK, 0},
                        {WM_SETFOCUS, 0, 0},
                        {WM_KILLFOCUS, 0, 0},
                        {WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&header)},
                        {WM_NOTIFY, 5, reinterpret_cast<LPARAM>(&other)}};
    for (Row const& sent : rows) {
        previous->seen.clear();
        send(sent.message, sent.wParam, sent.lParam);
        auto const& seen = previous->seen;
        auto const found = std::ranges::find(seen, sent.message, &MSG::message);
        ASSERT_NE(found, seen.end()) << sent.message;
        EXPECT_EQ(found->wParam, sent.wParam);
        EXPECT_EQ(found->lParam, sent.lParam);
        EXPECT_EQ(previous->count(sent.message), 1) << sent.message;
    }
    ::ReleaseCapture();
}

TEST_ON_NEW_THREAD(Dispatch, ofADoubleClickPassesItOnButDoesNotRelayItToTheToolTip)
{
    start();
    for (UINT const message : {515U, 518U, 521U}) {
        ToolTipWatch const watch;
        send(message, MK_CONTROL, MAKELPARAM(5, 6));
        EXPECT_EQ(previous->count(message), 1) << message;
        EXPECT_THAT(watch.numbers(), IsEmpty()) << message;
    }
}

// A WM_NOTIFY with code -520 from another window than hToolTip is passed on untouched.
TEST_ON_NEW_THREAD(Dispatch, ofATextRequestFromAnotherWindowThanTheToolTipWindowPassesItOnUntouched)
{
    start();
    char text[] = "own";
    NMTTDISPINFOA request{};
    request.hdr = {form.window(), 77, static_cast<UINT>(-520)};
    request.lpszText = text;
    LPARAM seenAt = 0;
    std::string seenText;
    previous->action = [&](MSG const& message) {
        if (message.message != WM_NOTIFY)
            return;
        seenAt = message.lParam;
        seenText = reinterpret_cast<NMTTDISPINFOA const*>(message.lParam)->lpszText;
    };
    send(WM_NOTIFY, 77, reinterpret_cast<LPARAM>(&request));
    EXPECT_EQ(seenAt, reinterpret_cast<LPARAM>(&request));
    EXPECT_EQ(seenText, "own");
    EXPECT_EQ(request.lpszText, text);
}

TEST_ON_NEW_THREAD(Dispatch, answersATextRequestBeforeThePreviousProcedureSeesIt)
{
    start();
    button.extender().offer(L"ToolTipText", Variant::ofString(L"answered"));
    NMTTDISPINFOA request{};
    request.hdr = {theToolTipWindow(), 77, static_cast<UINT>(-520)};
    std::string seen;
    previous->action = [&](MSG const& message) {
        if (message.message == WM_NOTIFY)
            seen = reinterpret_cast<NMTTDISPINFOA const*>(message.lParam)->lpszText;
    };
    send(WM_NOTIFY, 77, reinterpret_cast<LPARAM>(&request));
    EXPECT_EQ(seen, "answered");
}

TEST_ON_NEW_THREAD(Dispatch, ofASetFocusRepaintsTheControlBeforeThePreviousProcedureSeesTheMessage)
{
    start();
    for (UINT const message : {WM_SETFOCUS, WM_KILLFOCUS}) {
        kit::pumpPending();
        std::vector<std::string> order;
        button.events().action = [&](auto const&) { order.emplace_back(button.lastEvent()); };
        previous->action = [&](MSG const& seen) {
            if (seen.message == message)
                order.emplace_back("previous procedure");
        };
        send(message);
        ASSERT_GE(order.size(), 2U);
        EXPECT_EQ(order[0], "Paint");
        EXPECT_EQ(order[1], "previous procedure");
        button.events().action = nullptr;
    }
}

TEST_ON_NEW_THREAD(Dispatch, byTheMemberWindowProcReachesTheSameCodeThroughTheVtable)
{
    start();
    previous->answer = 4711;
    LONG result = -1;
    EXPECT_EQ(button->WindowProc(handle(), kUnlisted, 12, -34, &result), S_OK);
    EXPECT_EQ(result, 4711);
    ASSERT_EQ(previous->seen.size(), 1U);
    expectSeen(previous->seen[0], 12, -34);
    ToolTipWatch const watch;
    button->WindowProc(handle(), WM_MOUSEMOVE, 0, 0, &result);
    EXPECT_THAT(watch.relayed(), ElementsAreArray({WM_MOUSEMOVE}));
}

TEST_ON_NEW_THREAD(Dispatch, byTheMemberWindowProcReachesTheSameCodeByName)
{
    start();
    previous->answer = -4711;
    auto const values = std::vector<Variant>{Variant::ofLong(handle()), Variant::ofLong(kUnlisted),
                                             Variant::ofLong(12), Variant::ofLong(-34)};
    kit::Called const called = kit::callByName(*button.operator->(), L"WindowProc", values);
    EXPECT_EQ(called.result, S_OK);
    EXPECT_EQ(called.value.toLong(), -4711);
    ASSERT_EQ(previous->seen.size(), 1U);
    expectSeen(previous->seen[0], 12, -34);
    ToolTipWatch const watch;
    kit::callByName(*button.operator->(), L"WindowProc",
                    {Variant::ofLong(handle()), Variant::ofLong(WM_LBUTTONDBLCLK), Variant::ofLong(0),
                     Variant::ofLong(0)});
    EXPECT_THAT(watch.relayed(), IsEmpty());
    EXPECT_EQ(previous->count(WM_LBUTTONDBLCLK), 1);
}

TEST_ON_NEW_THREAD(Dispatch, byTheMemberWindowProcTakesReferencesToLongsAsTheDispatcherOnceGaveThem)
{
    start();
    previous->answer = 99;
    LONG values[] = {handle(), kUnlisted, 3, 4};
    VARIANTARG reversed[4];
    for (int i = 0; i < 4; ++i) {
        ::VariantInit(&reversed[i]);
        reversed[i].vt = VT_I4 | VT_BYREF;
        reversed[i].plVal = &values[3 - i];
    }
    DISPPARAMS parameters{reversed, nullptr, 4, 0};
    Variant result;
    EXPECT_EQ(button->Invoke(kit::idOf(*button.operator->(), L"WindowProc"), IID_NULL, 0, DISPATCH_METHOD,
                             &parameters, result.put(), nullptr, nullptr),
              S_OK);
    EXPECT_EQ(result.toLong(), 99);
    ASSERT_EQ(previous->seen.size(), 1U);
    EXPECT_EQ(previous->seen[0].lParam, static_cast<LPARAM>(4));
}

TEST_ON_NEW_THREAD(Dispatch, whereTheSlotHoldsNoControlAnswersZeroAndPassesNothingOn)
{
    start();
    previous->answer = 4711;
    LONG_PTR const control = ::SetWindowLongPtrA(window(), GWLP_USERDATA, 0);
    ASSERT_NE(control, 0);
    EXPECT_EQ(send(kUnlisted, 1, 2), 0);
    EXPECT_EQ(send(WM_GETDLGCODE), 0);
    EXPECT_TRUE(previous->seen.empty());
    ::SetWindowLongPtrA(window(), GWLP_USERDATA, control);
    EXPECT_EQ(send(kUnlisted, 1, 2), 4711);
}

TEST_ON_NEW_THREAD(Dispatch, ofAControlThatLoadsTwiceIsInstalledOnce)
{
    start();
    WNDPROC const installed = procedureOf(window());
    previous->answer = 4711;
    for (int i = 0; i < 3; ++i) {
        ASSERT_EQ(button.hosted().load(*looksBag().get()), S_OK);
        EXPECT_EQ(procedureOf(window()), installed);
        previous->seen.clear();
        EXPECT_EQ(send(kUnlisted, 1, 2), 4711);
        EXPECT_EQ(previous->count(kUnlisted), 1);
    }
}

TEST_ON_NEW_THREAD(Dispatch, doesNotKeepTheControlAlive)
{
    button.start();
    button.release();
    EXPECT_EQ(library().canUnloadNow(), S_OK);
    EXPECT_FALSE(::IsWindow(window()));
}

TEST_ON_NEW_THREAD(Dispatch, endsWithTheControlAndThePreviousProcedureSeesTheRest)
{
    start();
    button.remove();
    EXPECT_FALSE(::IsWindow(window()));
    EXPECT_EQ(previous->count(WM_DESTROY), 1);
    EXPECT_EQ(previous->count(WM_NCDESTROY), 1) << "to the window's last message";
}

TEST_ON_NEW_THREAD(Dispatch, survivesTheControlsEndInsideThePreviousProcedure)
{
    start();
    previous->answer = 4711;
    previous->action = [&](MSG const& seen) {
        if (seen.message != kUnlisted)
            return;
        previous->action = nullptr;
        button.remove();
    };
    EXPECT_EQ(send(kUnlisted), 4711);
    EXPECT_FALSE(::IsWindow(window()));
}

TEST_ON_NEW_THREAD(Dispatch, survivesTheControlsEndInsideTheRepaintOfAFocusChange)
{
    start();
    button.events().action = [&](auto const&) {
        button.events().action = nullptr;
        button.remove();
    };
    send(WM_SETFOCUS);
    EXPECT_FALSE(::IsWindow(window()));
}

// A third part of the program that subclasses later, and is still there when the control goes, has to learn
// that the window is gone: many keep what they know of a window until its last message.
TEST_ON_NEW_THREAD(Dispatch, survivesALaterSubclasserThatIsStillThereWhenTheControlGoes)
{
    button.start();
    PreviousProcedure later(window()); // later than the control, this time
    later.answer = 1;
    EXPECT_EQ(send(kUnlisted), 1);
    EXPECT_GT(send(WM_GETDLGCODE), 0) << "the chain goes on";
    button.remove();
    EXPECT_FALSE(::IsWindow(window()));
    EXPECT_EQ(later.count(WM_NCDESTROY), 1);
}

TEST_ON_NEW_THREAD(Dispatch, survivesALaterSubclasserThatLeavesBeforeTheControl)
{
    button.start();
    WNDPROC const installed = procedureOf(window());
    {
        PreviousProcedure const later(window());
    }
    EXPECT_EQ(procedureOf(window()), installed);
    ToolTipWatch const watch;
    send(WM_RBUTTONDOWN);
    EXPECT_THAT(watch.relayed(), ElementsAreArray({WM_RBUTTONDOWN}));
}

} // namespace
} // namespace quillet::winsvc

// Window messages of a subclassed control: what reaches its window's previous procedure, when and how.
#include "PlainControl.h"
#include "ServiceTest.h"
#include "kit/ByName.h"

#include <algorithm>

namespace quillet::winsvc {
namespace {

constexpr UINT kUnlisted = WM_APP + 7;

/// A running button whose window had a procedure before it loaded.
struct Subclassed {
    kit::FakeForm form;
    RunningButton button;
    std::unique_ptr<PreviousProcedure> previous;

    explicit Subclassed(kit::Library const& library) : button(library, form)
    {
        EXPECT_EQ(button.hosted().setSite(), S_OK);
        previous = std::make_unique<PreviousProcedure>(windowOf(button));
        button.start();
        previous->seen.clear();
    }
    ~Subclassed() { button.remove(); }
    Subclassed(Subclassed const&) = delete;
    Subclassed& operator=(Subclassed const&) = delete;

    HWND window() const { return button.window(); }
    long handle() const { return HandleToLong(window()); }
};

class Dispatch : public ServiceTest {};

TEST_ON_NEW_THREAD(Dispatch, ofAnyOtherMessageIsThePreviousProceduresAndSoIsItsResult)
{
    Subclassed subclassed(library());
    ASSERT_NE(procedureOf(subclassed.window()), subclassed.previous->address());
    auto const wParam = static_cast<WPARAM>(0x89ABCDEF01234567LL);
    auto const lParam = static_cast<LPARAM>(0xFEDCBA9876543210LL);
    for (LRESULT const answer : {static_cast<LRESULT>(4711), static_cast<LRESULT>(-1),
                                 static_cast<LRESULT>(0), static_cast<LRESULT>(0x76543210FEDCBA98LL)}) {
        subclassed.previous->seen.clear();
        subclassed.previous->answer = answer;
        EXPECT_EQ(::SendMessageA(subclassed.window(), kUnlisted, wParam, lParam), answer);
        ASSERT_EQ(subclassed.previous->seen.size(), 1U);
        MSG const& seen = subclassed.previous->seen.front();
        EXPECT_EQ(seen.hwnd, subclassed.window());
        EXPECT_EQ(seen.message, kUnlisted);
        EXPECT_EQ(seen.wParam, wParam);
        EXPECT_EQ(seen.lParam, lParam);
    }
}

TEST_ON_NEW_THREAD(Dispatch, passesOnTheMessagesThatItHandlesToo)
{
    Subclassed subclassed(library());
    NMHDR header{theToolTipWindow(), 0, static_cast<UINT>(-520)};
    NMHDR other{subclassed.form.window(), 5, static_cast<UINT>(-520)};
    subclassed.button.extender().refuse(L"ToolTipText");
    MSG const messages[] = {
        {nullptr, WM_MOUSEMOVE, 0, MAKELPARAM(5, 5), 0, {}},
        {nullptr, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5), 0, {}},
        {nullptr, WM_LBUTTONUP, 0, MAKELPARAM(5, 5), 0, {}},
        {nullptr, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5), 0, {}},
        {nullptr, WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(5, 5), 0, {}},
        {nullptr, WM_RBUTTONUP, 0, MAKELPARAM(5, 5), 0, {}},
        {nullptr, WM_RBUTTONDBLCLK, 0, MAKELPARAM(5, 5), 0, {}},
        {nullptr, WM_MBUTTONDOWN, MK_MBUTTON, MAKELPARAM(5, 5), 0, {}},
        {nullptr, WM_MBUTTONUP, 0, MAKELPARAM(5, 5), 0, {}},
        {nullptr, WM_MBUTTONDBLCLK, 0, MAKELPARAM(5, 5), 0, {}},
        {nullptr, WM_SETFOCUS, 0, 0, 0, {}},
        {nullptr, WM_KILLFOCUS, 0, 0, 0, {}},
        {nullptr, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&header), 0, {}},
        {nullptr, WM_NOTIFY, 5, reinterpret_cast<LPARAM>(&other), 0, {}},
    };
    for (MSG const& sent : messages) {
        subclassed.previous->seen.clear();
        ::SendMessageA(subclassed.window(), sent.message, sent.wParam, sent.lParam);
        auto const& seen = subclassed.previous->seen;
        auto const found = std::ranges::find(seen, sent.message, &MSG::message);
        ASSERT_NE(found, seen.end()) << sent.message;
        EXPECT_EQ(found->wParam, sent.wParam);
        EXPECT_EQ(found->lParam, sent.lParam);
        EXPECT_EQ(subclassed.previous->count(sent.message), 1) << sent.message;
    }
    ::ReleaseCapture();
}

TEST_ON_NEW_THREAD(Dispatch, ofADoubleClickPassesItOnButDoesNotRelayItToTheToolTip)
{
    Subclassed subclassed(library());
    for (UINT const message : {515U, 518U, 521U}) {
        ToolTipWatch const watch;
        ::SendMessageA(subclassed.window(), message, MK_CONTROL, MAKELPARAM(5, 6));
        EXPECT_EQ(subclassed.previous->count(message), 1) << message;
        EXPECT_THAT(watch.numbers(), ElementsAre()) << message;
    }
}

// A WM_NOTIFY with code -520 from another window than hToolTip is passed on untouched.
TEST_ON_NEW_THREAD(Dispatch, ofATextRequestFromAnotherWindowThanTheToolTipWindowPassesItOnUntouched)
{
    Subclassed subclassed(library());
    char text[] = "own";
    NMTTDISPINFOA request{};
    request.hdr = {subclassed.form.window(), 77, static_cast<UINT>(-520)};
    request.lpszText = text;
    LPARAM seenAt = 0;
    std::string seenText;
    subclassed.previous->action = [&](MSG const& message) {
        if (message.message != WM_NOTIFY)
            return;
        seenAt = message.lParam;
        seenText = reinterpret_cast<NMTTDISPINFOA const*>(message.lParam)->lpszText;
    };
    ::SendMessageA(subclassed.window(), WM_NOTIFY, 77, reinterpret_cast<LPARAM>(&request));
    EXPECT_EQ(seenAt, reinterpret_cast<LPARAM>(&request));
    EXPECT_EQ(seenText, "own");
    EXPECT_EQ(request.lpszText, text);
}

TEST_ON_NEW_THREAD(Dispatch, answersATextRequestBeforeThePreviousProcedureSeesIt)
{
    Subclassed subclassed(library());
    subclassed.button.extender().offer(L"ToolTipText", Variant::ofString(L"answered"));
    NMTTDISPINFOA request{};
    request.hdr = {theToolTipWindow(), 77, static_cast<UINT>(-520)};
    std::string seen;
    subclassed.previous->action = [&](MSG const& message) {
        if (message.message == WM_NOTIFY)
            seen = reinterpret_cast<NMTTDISPINFOA const*>(message.lParam)->lpszText;
    };
    ::SendMessageA(subclassed.window(), WM_NOTIFY, 77, reinterpret_cast<LPARAM>(&request));
    EXPECT_EQ(seen, "answered");
}

TEST_ON_NEW_THREAD(Dispatch, ofASetFocusRepaintsTheControlBeforeThePreviousProcedureSeesTheMessage)
{
    for (UINT const message : {WM_SETFOCUS, WM_KILLFOCUS}) {
        Subclassed subclassed(library());
        kit::pumpPending();
        std::vector<std::string> order;
        subclassed.button.events().action = [&](auto const&) {
            order.emplace_back(subclassed.button.lastEvent());
        };
        subclassed.previous->action = [&](MSG const& seen) {
            if (seen.message == message)
                order.emplace_back("previous procedure");
        };
        ::SendMessageA(subclassed.window(), message, 0, 0);
        ASSERT_GE(order.size(), 2U);
        EXPECT_EQ(order[0], "Paint");
        EXPECT_EQ(order[1], "previous procedure");
        subclassed.button.events().action = nullptr;
    }
}

TEST_ON_NEW_THREAD(Dispatch, byTheMemberWindowProcReachesTheSameCodeThroughTheVtable)
{
    Subclassed subclassed(library());
    subclassed.previous->answer = 4711;
    LONG result = -1;
    EXPECT_EQ(subclassed.button->WindowProc(subclassed.handle(), kUnlisted, 12, -34, &result), S_OK);
    EXPECT_EQ(result, 4711);
    ASSERT_EQ(subclassed.previous->seen.size(), 1U);
    EXPECT_EQ(subclassed.previous->seen[0].hwnd, subclassed.window());
    EXPECT_EQ(subclassed.previous->seen[0].message, kUnlisted);
    EXPECT_EQ(subclassed.previous->seen[0].wParam, static_cast<WPARAM>(12));
    EXPECT_EQ(subclassed.previous->seen[0].lParam, static_cast<LPARAM>(-34));
    ToolTipWatch const watch;
    subclassed.button->WindowProc(subclassed.handle(), WM_MOUSEMOVE, 0, 0, &result);
    EXPECT_THAT(watch.relayed(), ElementsAre(WM_MOUSEMOVE));
}

TEST_ON_NEW_THREAD(Dispatch, byTheMemberWindowProcReachesTheSameCodeByName)
{
    Subclassed subclassed(library());
    subclassed.previous->answer = -4711;
    auto const values = std::vector<Variant>{Variant::ofLong(subclassed.handle()), Variant::ofLong(kUnlisted),
                                             Variant::ofLong(12), Variant::ofLong(-34)};
    kit::Called const called = kit::callByName(*subclassed.button.operator->(), L"WindowProc", values);
    EXPECT_EQ(called.result, S_OK);
    EXPECT_EQ(called.value.toLong(), -4711);
    ASSERT_EQ(subclassed.previous->seen.size(), 1U);
    EXPECT_EQ(subclassed.previous->seen[0].wParam, static_cast<WPARAM>(12));
    EXPECT_EQ(subclassed.previous->seen[0].lParam, static_cast<LPARAM>(-34));
    ToolTipWatch const watch;
    kit::callByName(*subclassed.button.operator->(), L"WindowProc",
                    {Variant::ofLong(subclassed.handle()), Variant::ofLong(WM_LBUTTONDBLCLK),
                     Variant::ofLong(0), Variant::ofLong(0)});
    EXPECT_THAT(watch.relayed(), ElementsAre());
    EXPECT_EQ(subclassed.previous->count(WM_LBUTTONDBLCLK), 1);
}

TEST_ON_NEW_THREAD(Dispatch, byTheMemberWindowProcTakesReferencesToLongsAsTheDispatcherOnceGaveThem)
{
    Subclassed subclassed(library());
    subclassed.previous->answer = 99;
    LONG values[] = {subclassed.handle(), kUnlisted, 3, 4};
    VARIANTARG reversed[4];
    for (int i = 0; i < 4; ++i) {
        ::VariantInit(&reversed[i]);
        reversed[i].vt = VT_I4 | VT_BYREF;
        reversed[i].plVal = &values[3 - i];
    }
    DISPPARAMS parameters{reversed, nullptr, 4, 0};
    Variant result;
    EXPECT_EQ(subclassed.button->Invoke(kit::idOf(*subclassed.button.operator->(), L"WindowProc"), IID_NULL,
                                        0, DISPATCH_METHOD, &parameters, result.put(), nullptr, nullptr),
              S_OK);
    EXPECT_EQ(result.toLong(), 99);
    ASSERT_EQ(subclassed.previous->seen.size(), 1U);
    EXPECT_EQ(subclassed.previous->seen[0].lParam, static_cast<LPARAM>(4));
}

TEST_ON_NEW_THREAD(Dispatch, whereTheSlotHoldsNoControlAnswersZeroAndPassesNothingOn)
{
    Subclassed subclassed(library());
    subclassed.previous->answer = 4711;
    LONG_PTR const control = ::SetWindowLongPtrA(subclassed.window(), GWLP_USERDATA, 0);
    ASSERT_NE(control, 0);
    EXPECT_EQ(::SendMessageA(subclassed.window(), kUnlisted, 1, 2), 0);
    EXPECT_EQ(::SendMessageA(subclassed.window(), WM_GETDLGCODE, 0, 0), 0);
    EXPECT_TRUE(subclassed.previous->seen.empty());
    ::SetWindowLongPtrA(subclassed.window(), GWLP_USERDATA, control);
    EXPECT_EQ(::SendMessageA(subclassed.window(), kUnlisted, 1, 2), 4711);
}

TEST_ON_NEW_THREAD(Dispatch, ofAControlThatLoadsTwiceIsInstalledOnce)
{
    Subclassed subclassed(library());
    WNDPROC const installed = procedureOf(subclassed.window());
    subclassed.previous->answer = 4711;
    for (int i = 0; i < 3; ++i) {
        ASSERT_EQ(subclassed.button.hosted().load(*looksBag().get()), S_OK);
        EXPECT_EQ(procedureOf(subclassed.window()), installed);
        subclassed.previous->seen.clear();
        EXPECT_EQ(::SendMessageA(subclassed.window(), kUnlisted, 1, 2), 4711);
        EXPECT_EQ(subclassed.previous->count(kUnlisted), 1);
    }
}

TEST_ON_NEW_THREAD(Dispatch, doesNotKeepTheControlAlive)
{
    kit::FakeForm form;
    RunningButton button(library(), form);
    button.start();
    button.release();
    EXPECT_EQ(library().canUnloadNow(), S_OK);
    EXPECT_FALSE(::IsWindow(button.window()));
}

TEST_ON_NEW_THREAD(Dispatch, endsWithTheControlAndThePreviousProcedureSeesTheRest)
{
    Subclassed subclassed(library());
    subclassed.button.remove();
    EXPECT_FALSE(::IsWindow(subclassed.window()));
    EXPECT_EQ(subclassed.previous->count(WM_DESTROY), 1);
    EXPECT_EQ(subclassed.previous->count(WM_NCDESTROY), 1) << "to the window's last message";
}

TEST_ON_NEW_THREAD(Dispatch, survivesTheControlsEndInsideThePreviousProcedure)
{
    Subclassed subclassed(library());
    subclassed.previous->answer = 4711;
    subclassed.previous->action = [&](MSG const& seen) {
        if (seen.message != kUnlisted)
            return;
        subclassed.previous->action = nullptr;
        subclassed.button.remove();
    };
    EXPECT_EQ(::SendMessageA(subclassed.window(), kUnlisted, 0, 0), 4711);
    EXPECT_FALSE(::IsWindow(subclassed.window()));
}

TEST_ON_NEW_THREAD(Dispatch, survivesTheControlsEndInsideTheRepaintOfAFocusChange)
{
    Subclassed subclassed(library());
    subclassed.button.events().action = [&](auto const&) {
        subclassed.button.events().action = nullptr;
        subclassed.button.remove();
    };
    ::SendMessageA(subclassed.window(), WM_SETFOCUS, 0, 0);
    EXPECT_FALSE(::IsWindow(subclassed.window()));
}

// A third part of the program that subclasses later, and is still there when the control goes, has to learn
// that the window is gone: many keep what they know of a window until its last message.
TEST_ON_NEW_THREAD(Dispatch, survivesALaterSubclasserThatIsStillThereWhenTheControlGoes)
{
    kit::FakeForm form;
    RunningButton button(library(), form);
    button.start();
    PreviousProcedure later(button.window()); // later than the control, this time
    later.answer = 1;
    EXPECT_EQ(::SendMessageA(button.window(), kUnlisted, 0, 0), 1);
    EXPECT_GT(::SendMessageA(button.window(), WM_GETDLGCODE, 0, 0), 0) << "the chain goes on";
    button.remove();
    EXPECT_FALSE(::IsWindow(button.window()));
    EXPECT_EQ(later.count(WM_NCDESTROY), 1);
}

TEST_ON_NEW_THREAD(Dispatch, survivesALaterSubclasserThatLeavesBeforeTheControl)
{
    kit::FakeForm form;
    RunningButton button(library(), form);
    button.start();
    WNDPROC const installed = procedureOf(button.window());
    {
        PreviousProcedure const later(button.window());
    }
    EXPECT_EQ(procedureOf(button.window()), installed);
    ToolTipWatch const watch;
    ::SendMessageA(button.window(), WM_RBUTTONDOWN, 0, 0);
    EXPECT_THAT(watch.relayed(), ElementsAre(WM_RBUTTONDOWN));
}

} // namespace
} // namespace quillet::winsvc

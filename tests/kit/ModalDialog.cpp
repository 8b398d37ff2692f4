// Modal dialogs: one that a program opens in the middle of an event, and those that a test waits for.
#include "kit/ModalDialog.h"

#include "kit/MessageWatch.h"

#include <commctrl.h>

#include <utility>

namespace quillet::kit {

namespace {

constexpr UINT kRun = WM_APP;

using Body = std::function<void(HWND dialog)>;

struct Opening {
    POINT at;
    Body const& body;
};

INT_PTR CALLBACK procedure(HWND dialog, UINT message, WPARAM, LPARAM lParam)
{
    switch (message) {
    case WM_INITDIALOG: {
        POINT const at = reinterpret_cast<Opening const*>(lParam)->at;
        ::SetWindowPos(dialog, HWND_TOPMOST, at.x, at.y, 120, 80, 0);
        ::ReleaseCapture(); // not every system's dialogs do it themselves
        ::PostMessageA(dialog, kRun, 0, lParam);
        return TRUE;
    }
    case kRun:
        reinterpret_cast<Opening const*>(lParam)->body(dialog);
        ::EndDialog(dialog, 0);
        return TRUE;
    default:
        return FALSE;
    }
}

constexpr UINT kLook = 20; // milliseconds

std::function<void(HWND)> s_met; // a timer's procedure is given nothing to find it by

BOOL CALLBACK meet(HWND window, LPARAM)
{
    if (isOfClass(window, L"#32770") && ::IsWindowVisible(window))
        s_met(window);
    return TRUE;
}

void CALLBACK look(HWND, UINT, UINT_PTR, DWORD) { ::EnumThreadWindows(::GetCurrentThreadId(), meet, 0); }

BOOL CALLBACK readText(HWND window, LPARAM texts)
{
    wchar_t text[256] = {};
    ::GetWindowTextW(window, text, 256);
    reinterpret_cast<std::vector<std::wstring>*>(texts)->emplace_back(text);
    return TRUE;
}

} // namespace

void runDialog(HWND owner, POINT at, Body const& body)
{
    struct {
        DLGTEMPLATE head;
        WORD menu, windowClass, title;
    } const form = {{WS_POPUP | WS_VISIBLE, 0, 0, 0, 0, 60, 40}, 0, 0, 0};
    ::ClientToScreen(owner, &at);
    Opening const opening = {at, body};
    ::DialogBoxIndirectParamA(nullptr, &form.head, owner, &procedure, reinterpret_cast<LPARAM>(&opening));
}

DialogWatch::DialogWatch(std::function<void(HWND)> body) : m_timer(::SetTimer(nullptr, 0, kLook, look))
{
    s_met = std::move(body);
}

DialogWatch::~DialogWatch()
{
    ::KillTimer(nullptr, m_timer);
    s_met = nullptr;
}

std::vector<std::wstring> textsIn(HWND dialog)
{
    std::vector<std::wstring> texts;
    ::EnumChildWindows(dialog, readText, reinterpret_cast<LPARAM>(&texts));
    return texts;
}

std::vector<std::wstring> pageTitles(HWND dialog)
{
    std::vector<std::wstring> titles;
    HWND const tabs = ::FindWindowExW(dialog, nullptr, WC_TABCONTROLW, nullptr);
    int const count = tabs ? static_cast<int>(::SendMessageW(tabs, TCM_GETITEMCOUNT, 0, 0)) : 0;
    for (int i = 0; i < count; ++i) {
        wchar_t title[64] = L"";
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = title;
        item.cchTextMax = 64;
        ::SendMessageW(tabs, TCM_GETITEMW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
        titles.emplace_back(title);
    }
    return titles;
}

} // namespace quillet::kit

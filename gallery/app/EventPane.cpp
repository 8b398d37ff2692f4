// The window beside a form that shows what its controls raise.
#include "gallery/app/EventPane.h"

#include "gallery/app/EventText.h"

#include <utility>

namespace quillet::gallery {

namespace {

constexpr LRESULT kMostLines = 500;
constexpr wchar_t kTitle[] = L"Events";

HWND child(HWND parent, wchar_t const* windowClass, wchar_t const* text, DWORD style) noexcept
{
    HWND const window =
        ::CreateWindowExW(0, windowClass, text, WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | style, 0, 0, 0, 0,
                          parent, nullptr, ::GetModuleHandleW(nullptr), nullptr);
    ::SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(::GetStockObject(DEFAULT_GUI_FONT)), FALSE);
    return window;
}

} // namespace

EventPane::EventPane(HWND parent)
    : m_title(child(parent, L"STATIC", kTitle, SS_CENTERIMAGE | SS_NOPREFIX)),
      m_list(child(parent, L"LISTBOX", L"", WS_VSCROLL | WS_BORDER | LBS_NOINTEGRALHEIGHT | LBS_NOSEL))
{}

void EventPane::moveTo(RECT const& place, int titleHeight) noexcept
{
    int const width = place.right - place.left;
    ::MoveWindow(m_title, place.left, place.top, width, titleHeight, TRUE);
    ::MoveWindow(m_list, place.left, place.top + titleHeight, width, place.bottom - place.top - titleHeight,
                 TRUE);
}

void EventPane::begin(std::wstring const& hint)
{
    m_last.clear();
    ::SendMessageW(m_list, LB_RESETCONTENT, 0, 0);
    ::SetWindowTextW(m_title, hint.empty() ? kTitle : hint.c_str());
}

void EventPane::add(FormEvent const& event)
{
    if (event.name == L"Paint")
        return;
    std::wstring name = eventName(event);
    bool const goesOn = event.name == L"MouseMove" && name == m_last;
    m_last = std::move(name);
    ::SendMessageW(m_list, WM_SETREDRAW, FALSE, 0);
    LRESULT const count = ::SendMessageW(m_list, LB_GETCOUNT, 0, 0);
    if (goesOn)
        ::SendMessageW(m_list, LB_DELETESTRING, static_cast<WPARAM>(count - 1), 0);
    else if (count >= kMostLines)
        ::SendMessageW(m_list, LB_DELETESTRING, 0, 0);
    std::wstring const line = eventText(event);
    LRESULT const added = ::SendMessageW(m_list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line.c_str()));
    ::SendMessageW(m_list, LB_SETTOPINDEX, static_cast<WPARAM>(added), 0);
    ::SendMessageW(m_list, WM_SETREDRAW, TRUE, 0);
    ::InvalidateRect(m_list, nullptr, TRUE);
}

} // namespace quillet::gallery

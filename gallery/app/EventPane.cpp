// The window beside a form that shows what its controls raise.
#include "gallery/app/EventPane.h"

#include "base/Scale.h"
#include "gallery/app/EventText.h"

#include <array>
#include <utility>

namespace quillet::gallery {

namespace {

constexpr LRESULT kMostLines = 500;
constexpr long kBreadthTwips = 4200;
constexpr long kDepthTwips = 2100;

RECT workArea(HWND window) noexcept
{
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    ::GetMonitorInfoW(::MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor);
    return monitor.rcWork;
}

bool isInside(RECT const& inner, RECT const& outer) noexcept
{
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
}

/// The first side of the form that has room; the right one when none has.
RECT placeBeside(HWND form) noexcept
{
    RECT at{};
    ::GetWindowRect(form, &at);
    Resolution const resolution = screenResolution();
    int const breadth = resolution.pixelsX(kBreadthTwips);
    int const depth = resolution.pixelsY(kDepthTwips);
    std::array<RECT, 4> const sides{{{at.right, at.top, at.right + breadth, at.bottom},
                                     {at.left - breadth, at.top, at.left, at.bottom},
                                     {at.left, at.bottom, at.right, at.bottom + depth},
                                     {at.left, at.top - depth, at.right, at.top}}};
    RECT const screen = workArea(form);
    for (RECT const& side : sides)
        if (isInside(side, screen))
            return side;
    return sides.front();
}

} // namespace

EventPane::EventPane(HWND form)
{
    constexpr DWORD kStyle =
        WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_VSCROLL | LBS_NOINTEGRALHEIGHT | LBS_NOSEL;
    RECT const place = placeBeside(form);
    m_window = ::CreateWindowExW(WS_EX_TOOLWINDOW, L"LISTBOX", L"Events", kStyle, place.left, place.top,
                                 place.right - place.left, place.bottom - place.top, form, nullptr,
                                 ::GetModuleHandleW(nullptr), nullptr);
    ::SendMessageW(m_window, WM_SETFONT, reinterpret_cast<WPARAM>(::GetStockObject(DEFAULT_GUI_FONT)), FALSE);
}

void EventPane::show() noexcept { ::ShowWindow(m_window, SW_SHOWNOACTIVATE); }

void EventPane::add(FormEvent const& event)
{
    if (event.name == L"Paint" || !::IsWindow(m_window))
        return;
    std::wstring name = eventName(event);
    bool const goesOn = event.name == L"MouseMove" && name == m_last;
    m_last = std::move(name);
    ::SendMessageW(m_window, WM_SETREDRAW, FALSE, 0);
    LRESULT const count = ::SendMessageW(m_window, LB_GETCOUNT, 0, 0);
    if (goesOn)
        ::SendMessageW(m_window, LB_DELETESTRING, static_cast<WPARAM>(count - 1), 0);
    else if (count >= kMostLines)
        ::SendMessageW(m_window, LB_DELETESTRING, 0, 0);
    std::wstring const line = eventText(event);
    LRESULT const added = ::SendMessageW(m_window, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line.c_str()));
    ::SendMessageW(m_window, LB_SETTOPINDEX, static_cast<WPARAM>(added), 0);
    ::SendMessageW(m_window, WM_SETREDRAW, TRUE, 0);
    ::InvalidateRect(m_window, nullptr, TRUE);
}

} // namespace quillet::gallery

// A window that does what following a mouse takes, with bare calls.
#include "bench/BareFollower.h"

#include <commctrl.h>

namespace quillet::bench {

namespace {

UniqueWindow newWindow(HWND form, RECT const& place)
{
    return UniqueWindow(::CreateWindowExW(0, L"STATIC", nullptr, WS_CHILD | WS_VISIBLE | SS_NOTIFY,
                                          place.left, place.top, place.right - place.left,
                                          place.bottom - place.top, form, nullptr, nullptr, nullptr));
}

UniqueWindow newToolTip(HWND tool)
{
    ::InitCommonControls();
    UniqueWindow toolTip(::CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, 0, CW_USEDEFAULT,
                                           CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr,
                                           nullptr, nullptr));
    TTTOOLINFOW info{};
    info.cbSize = TTTOOLINFOW_V1_SIZE;
    info.uFlags = TTF_IDISHWND;
    info.hwnd = tool;
    info.uId = reinterpret_cast<UINT_PTR>(tool);
    info.lpszText = LPSTR_TEXTCALLBACKW;
    ::SendMessageW(toolTip.get(), TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&info));
    return toolTip;
}

} // namespace

BareFollower::BareFollower(HWND form, RECT const& place, HFONT font, FollowedLooks const& looks)
    : m_window(newWindow(form, place)), m_toolTip(newToolTip(m_window.get())),
      m_painter(m_window.get(), {place.right - place.left, place.bottom - place.top}, font, "Save changes"),
      m_looks(looks)
{
    ::SetWindowLongPtrW(m_window.get(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    ::SetWindowLongPtrW(m_window.get(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&procedure));
}

LRESULT BareFollower::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto* const self = reinterpret_cast<BareFollower*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_MOUSEMOVE || message == WM_LBUTTONDOWN || message == WM_LBUTTONUP) {
        self->handle(message, wParam, lParam);
        return 0;
    }
    return ::DefWindowProcW(window, message, wParam, lParam);
}

void BareFollower::handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    MSG relayed{};
    relayed.hwnd = window();
    relayed.message = message;
    relayed.wParam = wParam;
    relayed.lParam = lParam;
    ::SendMessageW(m_toolTip.get(), TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&relayed));
    ::GetKeyState(VK_MENU); // for the event's arguments
    bool const over = isOver();
    bool const captured = ::GetCapture() == window();
    if (message == WM_LBUTTONDOWN)
        m_painter.paint(m_looks.pressed);
    else if (message == WM_LBUTTONUP)
        m_painter.paint(m_looks.hot);
    else if (over && !captured) {
        ::SetCapture(window());
        m_painter.paint(m_looks.hot);
    } else if (!over && captured) {
        ::ReleaseCapture();
        m_painter.paint(m_looks.normal);
    }
}

bool BareFollower::isOver() const
{
    POINT cursor{};
    ::GetCursorPos(&cursor);
    return ::WindowFromPoint(cursor) == window();
}

} // namespace quillet::bench

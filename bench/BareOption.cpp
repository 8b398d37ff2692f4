// One of the system's option buttons that a host gives the same look.
#include "bench/BareOption.h"

#include "bench/Container.h"

namespace quillet::bench {

namespace {

constexpr int kGlyph = 13;
constexpr int kTextLeft = 17;
constexpr UINT kFormat = DT_LEFT | DT_TOP | DT_SINGLELINE | DT_NOCLIP;

} // namespace

BareOption::BareOption(HWND parent, RECT const& place, HFONT font, kit::Canvas const& picture)
    : m_size{place.right - place.left, place.bottom - place.top}, m_font(font), m_picture(picture),
      m_window(::CreateWindowExW(0, L"BUTTON", L"", WS_CHILD | WS_VISIBLE | BS_RADIOBUTTON, place.left,
                                 place.top, m_size.cx, m_size.cy, parent, nullptr, nullptr, nullptr))
{
    {
        WindowDc const dc(m_window.get());
        SelectScope const selected(dc.get(), font);
        ::DrawTextW(dc.get(), kCaption, -1, &m_text, kFormat | DT_CALCRECT);
    }
    ::OffsetRect(&m_text, kTextLeft, (m_size.cy - m_text.bottom) / 2);
    ::SetWindowLongPtrW(m_window.get(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    m_system = reinterpret_cast<WNDPROC>(::SetWindowLongPtrW(
        m_window.get(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&BareOption::procedure)));
}

LRESULT CALLBACK BareOption::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto* const self = reinterpret_cast<BareOption*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_PAINT) {
        self->paint();
        return 0;
    }
    if (message == WM_ERASEBKGND)
        return 1;
    if (message == WM_MOUSEMOVE)
        self->follow();
    return ::CallWindowProcW(self->m_system, window, message, wParam, lParam);
}

void BareOption::follow()
{
    POINT cursor{};
    ::GetCursorPos(&cursor);
    bool const over = ::WindowFromPoint(cursor) == m_window.get();
    if (over == m_hot)
        return;
    m_hot = over;
    if (over)
        ::SetCapture(m_window.get());
    else
        ::ReleaseCapture();
    ::RedrawWindow(m_window.get(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
}

void BareOption::paint() const
{
    PAINTSTRUCT region;
    HDC const target = ::BeginPaint(m_window.get(), &region);
    {
        UniqueMemoryDc const dc(::CreateCompatibleDC(target));
        UniqueBitmap const bitmap(::CreateCompatibleBitmap(target, m_size.cx, m_size.cy));
        SelectScope const selectedBitmap(dc.get(), bitmap.get());
        SelectScope const selectedFont(dc.get(), m_font);
        RECT const all = {0, 0, m_size.cx, m_size.cy};
        ::SetBkColor(dc.get(), ::GetSysColor(COLOR_BTNFACE));
        ::ExtTextOutW(dc.get(), 0, 0, ETO_OPAQUE, &all, nullptr, 0, nullptr);
        ::BitBlt(dc.get(), 0, 0, kGlyph, m_size.cy, m_picture.dc(), 0, 0, SRCCOPY);
        ::SetTextColor(dc.get(), m_hot ? m_hotFore : m_fore);
        ::SetBkMode(dc.get(), TRANSPARENT);
        RECT text = m_text;
        ::DrawTextW(dc.get(), kCaption, -1, &text, kFormat);
        ::BitBlt(target, 0, 0, m_size.cx, m_size.cy, dc.get(), 0, 0, SRCCOPY);
    }
    ::EndPaint(m_window.get(), &region);
}

} // namespace quillet::bench

// An option button or check box inside a control: its window, and what it keeps.
#include "controls/optioncheck/InnerButton.h"

#include "base/ComCall.h"
#include "base/Module.h"
#include "base/RunTimeError.h"
#include "controls/optioncheck/OptionCheckButton.h"
#include "drawing/Colour.h"
#include "surface/window/WindowClass.h"

#include <utility>

namespace quillet {

namespace {

WindowClass buttonClass() noexcept { return WindowClass("QuilletButton"); }

WNDCLASSEXW systemClass()
{
    WNDCLASSEXW description = {};
    description.cbSize = sizeof(description);
    if (!::GetClassInfoExW(nullptr, L"Button", &description))
        throw lastError();
    return description;
}

/// Like the system's class, but for what this button does by itself.
WNDCLASSEXW derived(WNDCLASSEXW description, WNDPROC procedure) noexcept
{
    // It owns its DC, so whoever asks for it time and again without giving it back gets the same one. It
    // knows no double clicks: there is no event for them, and each press is to be one.
    description.style = CS_OWNDC;
    description.lpfnWndProc = procedure;
    // Found through extra bytes behind the system's: the user-data slot belongs to subclassing.
    description.cbWndExtra += static_cast<int>(sizeof(void*));
    return description;
}

wchar_t const* textOf(Bstr const& text) noexcept { return text.get() ? text.get() : L""; }

HFONT handleOf(IFont* font)
{
    HFONT handle = nullptr;
    check(deref(font).get_hFont(&handle), IID_IFont);
    return handle;
}

} // namespace

InnerButton::InnerButton(OptionCheckButton& control, InnerKind kind, std::wstring_view caption)
    : m_control(control), m_kind(kind), m_caption(caption)
{}

void InnerButton::unregisterClass() noexcept { buttonClass().unregister(); }

void InnerButton::create(HWND parent)
{
    WNDCLASSEXW const system = systemClass();
    WindowClass const own = buttonClass();
    own.require(derived(system, &InnerButton::procedure));
    SIZE const size = m_control.window().clientSize();
    DWORD const style = m_kind == InnerKind::Option ? BS_RADIOBUTTON : BS_3STATE;
    m_window = ::CreateWindowExW(WS_EX_NOPARENTNOTIFY, own.wideName(), textOf(m_caption),
                                 WS_CHILD | WS_VISIBLE | WS_TABSTOP | style, 0, 0, size.cx, size.cy, parent,
                                 nullptr, moduleInstance(), nullptr);
    if (!m_window)
        throw lastError();
    m_system = system.lpfnWndProc;
    ::SetWindowLongPtrW(m_window, system.cbWndExtra, reinterpret_cast<LONG_PTR>(this));
    passOnUnseen(BM_SETCHECK, static_cast<WPARAM>(m_value), 0);
    fontChanged();
    m_control.onInnerMade();
}

HWND InnerButton::handle()
{
    HWND const parent = m_control.hWnd(); // making it may make this one, too
    if (!m_window)
        create(parent);
    return m_window;
}

void InnerButton::destroy() noexcept
{
    if (!m_window)
        return;
    ::DestroyWindow(forget());
}

/// From here on messages find no button: they must not reach a control that is going, or has another window.
HWND InnerButton::forget() noexcept
{
    HWND const window = std::exchange(m_window, nullptr);
    ::SetWindowLongPtrW(window, static_cast<int>(::GetClassLongPtrW(window, GCL_CBWNDEXTRA) - sizeof(void*)),
                        0);
    return window;
}

/// Two marks in a row stand for the character itself.
std::wstring_view InnerButton::accessKey() const noexcept
{
    std::wstring_view const caption = m_caption.view();
    for (size_t at = caption.find(L'&'); at != std::wstring_view::npos; at = caption.find(L'&', at + 2))
        if (at + 1 < caption.size() && caption[at + 1] != L'&')
            return caption.substr(at + 1, 1);
    return {};
}

std::wstring InnerButton::shownCaption() const
{
    std::wstring shown;
    std::wstring_view const caption = m_caption.view();
    for (size_t at = 0; at < caption.size(); ++at) {
        if (caption[at] == L'&' && ++at == caption.size())
            break;
        shown += caption[at];
    }
    return shown;
}

void InnerButton::setCaption(std::wstring_view caption)
{
    m_caption = Bstr(caption);
    m_place = {};
    m_control.setAccessKeys(accessKey());
    if (!m_window)
        return;
    // Straight to the system's procedure: with the window subclassed by ANSI functions, a message would lose
    // the characters that are not in the code page.
    Bstr const text(caption);
    passOnUnseen(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(textOf(text)));
    refresh();
}

void InnerButton::setForeColor(OLE_COLOR colour)
{
    if (std::exchange(m_foreColor, colour) != colour)
        refresh();
}

void InnerButton::setBackColor(OLE_COLOR colour)
{
    if (std::exchange(m_backColor, colour) != colour)
        refresh();
}

void InnerButton::fontChanged()
{
    m_place = {};
    if (!m_window)
        return;
    passOnUnseen(WM_SETFONT, reinterpret_cast<WPARAM>(handleOf(m_control.font())), FALSE);
    refresh();
}

void InnerButton::store(long value)
{
    m_value = value;
    if (!m_window)
        return;
    passOnUnseen(BM_SETCHECK, static_cast<WPARAM>(value), 0);
    refresh();
    m_control.accessibility().stateChanged();
}

void InnerButton::setValue(long value)
{
    if (value == m_value)
        return;
    store(value);
    if (m_kind == InnerKind::Check || value != 0)
        m_control.onClick();
}

void InnerButton::click()
{
    long const wanted = m_kind == InnerKind::Option || m_value == 0 ? 1 : 0;
    if (wanted != m_value)
        store(wanted);
    m_control.onClick();
}

void InnerButton::notified(WORD code)
{
    // A press gives the window the focus, and some systems notify a click for that. The click comes with the
    // release.
    if (code == BN_CLICKED && !m_pressing)
        click();
}

void InnerButton::cover() noexcept
{
    if (!m_window) // it is made in the right size
        return;
    SIZE const size = m_control.window().clientSize();
    ::SetWindowPos(m_window, nullptr, 0, 0, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
}

void InnerButton::refresh() noexcept
{
    if (m_window)
        ::RedrawWindow(m_window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
}

void InnerButton::takeFocus() { ::SetFocus(handle()); }

GlyphLook InnerButton::glyphLook(COLORREF inside) const
{
    return {m_kind, m_value, resolvedColour(m_backColor), inside};
}

void InnerButton::draw(HDC dc, SIZE size, OLE_COLOR foreColor, COLORREF inside) const
{
    drawInnerButton(dc, size,
                    {glyphLook(inside), resolvedColour(foreColor), m_window && ::GetFocus() == m_window,
                     m_caption.view(), handleOf(m_control.font()), m_place});
}

void InnerButton::drawFilledGlyph(HDC dc, SIZE size, HBRUSH brush) const
{
    quillet::drawFilledGlyph(dc, size, glyphLook(kGlyphWhite), brush);
}

void InnerButton::paint()
{
    PAINTSTRUCT region;
    HWND const window = m_window;
    HDC const dc = ::BeginPaint(window, &region);
    RECT client = {};
    ::GetClientRect(window, &client);
    ignoringErrors([&] { draw(dc, {client.right, client.bottom}, m_foreColor, kGlyphWhite); });
    ::EndPaint(window, &region);
    m_control.onInnerPainted();
}

} // namespace quillet

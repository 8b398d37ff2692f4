// An option button or check box inside a control: its window procedure. The control hears of each message
// first, then the system's procedure does what a button does, and nothing that it would draw is seen.
#include "base/ComCall.h"
#include "controls/optioncheck/InnerButton.h"
#include "controls/optioncheck/OptionCheckButton.h"
#include "surface/window/MouseCapture.h"
#include "surface/window/MouseMessage.h"

#include <algorithm>
#include <utility>

namespace quillet {

namespace {

/// Runs a handler; its failure does not keep the message from the system.
template <class Handler> void tell(Handler&& handler) noexcept { ignoringErrors(handler); }

/// The character of a message in the code page, as events have it.
short characterOf(WPARAM wParam) noexcept
{
    auto const character = static_cast<wchar_t>(wParam);
    char ansi[2] = {};
    ::WideCharToMultiByte(CP_ACP, 0, &character, 1, ansi, 2, nullptr, nullptr);
    return static_cast<unsigned char>(ansi[0]);
}

InnerButton* buttonOf(HWND window) noexcept
{
    int const slot = static_cast<int>(::GetClassLongPtrW(window, GCL_CBWNDEXTRA) - sizeof(void*));
    return reinterpret_cast<InnerButton*>(::GetWindowLongPtrW(window, slot));
}

LRESULT systemProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    WNDCLASSEXW description = {};
    description.cbSize = sizeof(description);
    if (!::GetClassInfoExW(nullptr, L"Button", &description))
        return ::DefWindowProcW(window, message, wParam, lParam);
    return ::CallWindowProcW(description.lpfnWndProc, window, message, wParam, lParam);
}

} // namespace

/// While this lives the window is not drawn on: the system's procedure would draw at once, in the desktop's
/// style.
class InnerButton::PaintedByUs {
public:
    explicit PaintedByUs(HWND window) noexcept
        : m_window((::GetWindowLongPtrW(window, GWL_STYLE) & WS_VISIBLE) ? window : nullptr)
    {
        if (m_window)
            ::DefWindowProcW(m_window, WM_SETREDRAW, FALSE, 0);
    }
    ~PaintedByUs()
    {
        if (!m_window)
            return;
        ::DefWindowProcW(m_window, WM_SETREDRAW, TRUE, 0);
        ::InvalidateRect(m_window, nullptr, FALSE); // turning drawing on forgets what waited to be painted
    }
    PaintedByUs(PaintedByUs const&) = delete;
    PaintedByUs& operator=(PaintedByUs const&) = delete;

private:
    HWND m_window;
};

LRESULT CALLBACK InnerButton::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    InnerButton* const self = buttonOf(window);
    if (!self)
        return systemProcedure(window, message, wParam, lParam);
    auto const alive = self->m_control.keepAlive();
    LRESULT result = 0;
    ignoringErrors([&] { result = self->handle(message, wParam, lParam); });
    return result;
}

/// Runs a handler. False when the button was put away meanwhile: the system would take the keyboard and the
/// mouse for a button that nobody sees any more.
template <class Handler> bool InnerButton::tellAndStay(Handler&& handler) noexcept
{
    HWND const window = m_window;
    bool const shown = ::IsWindowVisible(window) != FALSE;
    tell(handler);
    return m_window == window && (!shown || ::IsWindowVisible(window));
}

LRESULT InnerButton::passOn(UINT message, WPARAM wParam, LPARAM lParam)
{
    return m_window ? ::CallWindowProcW(m_system, m_window, message, wParam, lParam) : 0;
}

LRESULT InnerButton::passOnUnseen(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!m_window)
        return 0;
    PaintedByUs const unseen(m_window);
    return passOn(message, wParam, lParam);
}

LRESULT InnerButton::handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (ButtonMessage const* const row = buttonMessage(message))
        return button(*row, wParam, lParam);
    switch (message) {
    case WM_PAINT:
        paint();
        return 0;
    case WM_ERASEBKGND: // painting covers everything
        return 1;
    case WM_PRINTCLIENT: {
        RECT client = {};
        ::GetClientRect(m_window, &client);
        draw(reinterpret_cast<HDC>(wParam), {client.right, client.bottom}, m_foreColor, kGlyphWhite);
        return 0;
    }
    case WM_MOUSEMOVE:
        tell([&] {
            m_control.onMouseMove(
                mouseArguments(m_control.window().twipsPerPixel(), heldButtons(wParam), wParam, lParam));
        });
        return passOn(message, wParam, lParam);
    case WM_CAPTURECHANGED: {
        LRESULT const result = passOn(message, wParam, lParam);
        if (isCaptureLost(m_window, lParam))
            tell([&] { m_control.onCaptureLost(); });
        return result;
    }
    case WM_MOUSELEAVE: {
        LRESULT const result = passOn(message, wParam, lParam);
        if (!hasMouseCapture(m_window)) // with the capture it hears the move that leaves
            tell([&] { m_control.onMouseLeft(); });
        return result;
    }
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
    case WM_KEYUP:
    case WM_SYSKEYUP:
    case WM_CHAR:
        return key(message, wParam, lParam);
    case WM_GETOBJECT:
        if (auto const object = m_control.accessibility().answer(m_window, wParam, lParam))
            return *object;
        return passOn(message, wParam, lParam);
    case WM_SETFOCUS:
        return gotFocus(wParam, lParam);
    case WM_KILLFOCUS:
        return lostFocus(wParam, lParam);
    case BM_SETCHECK: // from code that knows the window alone
        store(m_kind == InnerKind::Option ? wParam != 0 : std::min<long>(static_cast<long>(wParam), 2));
        return 0;
    case WM_SETTEXT:
        setCaption(lParam ? reinterpret_cast<wchar_t const*>(lParam) : L"");
        return TRUE;
    case BM_SETSTATE:
    case BM_SETSTYLE:
    case WM_ENABLE:
    case WM_SETFONT:
    case WM_UPDATEUISTATE:
        return passOnUnseen(message, wParam, lParam);
    case WM_NCDESTROY: {
        LRESULT const result = passOn(message, wParam, lParam);
        forget();
        return result;
    }
    default:
        return passOn(message, wParam, lParam);
    }
}

LRESULT InnerButton::button(ButtonMessage const& row, WPARAM wParam, LPARAM lParam)
{
    bool const left = row.button == MouseButtons::kLeft;
    MouseArguments const mouse =
        mouseArguments(m_control.window().twipsPerPixel(), row.button, wParam, lParam);
    switch (row.what) {
    case ButtonMessage::What::Down:
        if (!tellAndStay([&] { m_control.onMouseDown(mouse); }))
            return 0;
        break;
    case ButtonMessage::What::Up:
        tell([&] { m_control.onMouseUp(mouse); });
        return passOn(row.message, wParam, lParam);
    case ButtonMessage::What::Double:
        break;
    }
    return left ? pressed(row.message, wParam, lParam) : passOn(row.message, wParam, lParam);
}

LRESULT InnerButton::pressed(UINT message, WPARAM wParam, LPARAM lParam)
{
    m_pressing = true;
    LRESULT const result = passOn(message, wParam, lParam);
    m_pressing = false;
    return result;
}

LRESULT InnerButton::key(UINT message, WPARAM wParam, LPARAM lParam)
{
    auto code = static_cast<short>(wParam);
    if (message == WM_CHAR)
        code = characterOf(wParam);
    short const before = code;
    bool const stays = tellAndStay([&] {
        if (message == WM_CHAR)
            m_control.onCharacter(code);
        else if (message == WM_KEYDOWN || message == WM_SYSKEYDOWN)
            m_control.onKeyDown(code, shiftOfKeys());
        else
            m_control.onKeyUp(code, shiftOfKeys());
    });
    bool const usedUp = before != 0 && code == 0;
    return usedUp || !stays ? 0 : passOn(message, wParam, lParam);
}

/// While the form runs, an option that gets the keyboard by a key or by code becomes the chosen one, as in
/// the system's own groups.
bool InnerButton::isClickedByFocus() const noexcept
{
    return m_window && m_kind == InnerKind::Option && m_value == 0 && !m_pressing && m_control.userMode();
}

LRESULT InnerButton::gotFocus(WPARAM wParam, LPARAM lParam)
{
    bool const pressing = std::exchange(m_pressing, true); // the system's own click by focus does not count
    LRESULT const result = passOnUnseen(WM_SETFOCUS, wParam, lParam);
    m_pressing = pressing;
    if (reinterpret_cast<HWND>(wParam) != m_control.window().existing())
        tell([&] { m_control.inPlace().focusGained(); });
    refresh();
    if (isClickedByFocus())
        tell([&] { click(); });
    return result;
}

LRESULT InnerButton::lostFocus(WPARAM wParam, LPARAM lParam)
{
    LRESULT const result = passOnUnseen(WM_KILLFOCUS, wParam, lParam);
    refresh();
    if (reinterpret_cast<HWND>(wParam) == m_control.window().existing())
        return result;
    tell([&] { m_control.onLostFocus(); });
    tell([&] { m_control.inPlace().focusLost(); });
    return result;
}

} // namespace quillet

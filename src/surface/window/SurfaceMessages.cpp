// The surface's window: its procedure, and what mouse and keyboard messages become.
#include "base/ComCall.h"
#include "saving/StandardPicture.h"
#include "surface/Surface.h"
#include "surface/window/Cursor.h"
#include "surface/window/MouseCapture.h"
#include "surface/window/MouseMessage.h"
#include "surface/window/SurfaceWindow.h"

#include <windowsx.h>

#include <iterator>

namespace quillet {

namespace {

/// System cursors by mouse-pointer value: 0 default, then arrow, cross, I-beam, … ; 99 is the control's icon.
constexpr WORD kCursors[] = {32512, 32512, 32515, 32513, 32512, 32646, 32643, 32645,
                             32642, 32644, 32516, 32514, 32648, 32650, 32651, 32646};
constexpr short kCustomPointer = 99;

/// The cursor in an icon picture, which keeps it; null for every other picture and for none.
HCURSOR cursorOf(IUnknown* object) noexcept
{
    auto const picture = query<IPicture>(object);
    if (!picture || pictureType(object) != PICTYPE_ICON)
        return nullptr;
    return static_cast<HCURSOR>(pictureHandle(*picture.get()));
}

} // namespace

LRESULT CALLBACK SurfaceWindow::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    auto* const self = reinterpret_cast<SurfaceWindow*>(::GetWindowLongPtrA(window, 0));
    if (message == WM_NCCREATE) // all that the system would do is to give the window an empty title
        return TRUE;
    if (!self)
        return ::DefWindowProcA(window, message, wParam, lParam);
    auto const alive = self->m_surface.keepAlive();
    LRESULT result = 0;
    ignoringErrors([&] { result = self->handle(message, wParam, lParam); });
    return result;
}

LRESULT SurfaceWindow::passOn(UINT message, WPARAM wParam, LPARAM lParam)
{
    return m_window ? ::DefWindowProcA(m_window, message, wParam, lParam) : 0;
}

LRESULT SurfaceWindow::handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (ButtonMessage const* const row = buttonMessage(message)) {
        button(*row, wParam, lParam);
        return 0;
    }
    switch (message) {
    case WM_PAINT:
        paint();
        return 0;
    case WM_ERASEBKGND: // painting covers everything
        return 1;
    case WM_NCPAINT: // there is no frame
        return 0;
    case WM_PRINTCLIENT:
        m_surface.paintInto(reinterpret_cast<HDC>(wParam), clientSize());
        return 0;
    case WM_MOUSEMOVE:
        if (!(wParam & MK_LBUTTON))
            m_clickBegun = false; // the button came up somewhere else
        m_surface.onMouseMove(mouseArguments(twipsPerPixel(), heldButtons(wParam), wParam, lParam));
        return 0;
    case WM_CAPTURECHANGED:
        if (isCaptureLost(m_window, lParam))
            captureLost();
        return 0;
    case WM_CANCELMODE:
        m_clickBegun = false;
        return passOn(message, wParam, lParam);
    case WM_MOUSELEAVE:
        if (!hasMouseCapture(m_window)) // with the capture it hears the move that leaves
            mouseLeft();
        return 0;
    case WM_COMMAND:
        m_surface.onCommand(HIWORD(wParam), reinterpret_cast<HWND>(lParam));
        return 0;
    case WM_CHAR:
        m_surface.onKeyPress(static_cast<short>(wParam));
        return 0;
    case WM_GETOBJECT:
        if (auto const object = m_surface.accessibility().answer(m_window, wParam, lParam))
            return *object;
        return passOn(message, wParam, lParam);
    case WM_GETDLGCODE:
        return m_surface.dialogCode();
    case WM_SETCURSOR:
        if (LOWORD(lParam) != HTCLIENT)
            return passOn(message, wParam, lParam);
        setCursor();
        return TRUE;
    case WM_SETFOCUS:
        if (m_surface.watchesFocus())
            m_surface.onFocusMessage();
        m_surface.inPlace().focusGained();
        m_surface.onGotFocus();
        return 0;
    case WM_KILLFOCUS:
        if (m_surface.watchesFocus())
            m_surface.onFocusMessage();
        if (::IsChild(m_window, reinterpret_cast<HWND>(wParam)))
            return 0; // to the control's own inner button: the control keeps the keyboard
        m_surface.onLostFocus();
        m_surface.inPlace().focusLost();
        return 0;
    case WM_SIZE:
        sized();
        return 0;
    case WM_WINDOWPOSCHANGED: {
        LRESULT const result = passOn(message, wParam, lParam);
        UINT const flags = reinterpret_cast<WINDOWPOS const*>(lParam)->flags;
        if (flags & SWP_SHOWWINDOW)
            m_surface.onShow();
        if (flags & SWP_HIDEWINDOW)
            giveUpCapture();
        return result;
    }
    case WM_NCDESTROY: { // somebody destroyed a window above this one
        // The window's last message: from here on it is not ours, also where somebody made the message up, so
        // that its end does not reach the next window.
        ::SetWindowLongPtrA(m_window, 0, 0);
        LRESULT const result = passOn(message, wParam, lParam);
        lost();
        return result;
    }
    default:
        return passOn(message, wParam, lParam);
    }
}

void SurfaceWindow::paint()
{
    validate();
    m_surface.onPaint();
}

void SurfaceWindow::button(ButtonMessage const& row, WPARAM wParam, LPARAM lParam)
{
    bool const left = row.button == MouseButtons::kLeft;
    switch (row.what) {
    case ButtonMessage::What::Double: // of the other buttons it is a second press
        if (left) {
            m_surface.onDblClick();
            return;
        }
        [[fallthrough]];
    case ButtonMessage::What::Down:
        if (left)
            beginClick();
        m_surface.onMouseDown(mouseArguments(twipsPerPixel(), row.button, wParam, lParam));
        return;
    case ButtonMessage::What::Up:
        release(row.button, wParam, lParam);
        return;
    }
}

/// The press of a click. It ends in no click once its release can go to another window.
void SurfaceWindow::beginClick()
{
    m_clickBegun = true;
    if (::GetCapture() != m_window && isUnderCursor(m_window))
        awaitLeaving(m_window);
    takeFocus();
}

void SurfaceWindow::captureLost()
{
    m_clickBegun = false;
    m_surface.onCaptureLost();
}

void SurfaceWindow::mouseLeft()
{
    m_clickBegun = false;
    m_surface.onMouseLeft();
}

void SurfaceWindow::release(short button, WPARAM wParam, LPARAM lParam)
{
    bool const begun = button == MouseButtons::kLeft && m_clickBegun;
    if (button == MouseButtons::kLeft)
        m_clickBegun = false;
    m_surface.onMouseUp(mouseArguments(twipsPerPixel(), button, wParam, lParam));
    RECT client = {};
    if (begun && m_window && ::GetClientRect(m_window, &client) &&
        ::PtInRect(&client, {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}))
        m_surface.onClick();
}

void SurfaceWindow::setCursor() const
{
    short const pointer = m_surface.mousePointer();
    bool const named = pointer >= 0 && pointer < static_cast<short>(std::size(kCursors));
    HCURSOR const custom = pointer == kCustomPointer ? cursorOf(m_surface.mouseIcon()) : nullptr;
    WORD const system = kCursors[named ? pointer : 0]; // the arrow where no pointer has the number
    ::SetCursor(custom ? custom : ::LoadCursorA(nullptr, MAKEINTRESOURCEA(system)));
}

} // namespace quillet

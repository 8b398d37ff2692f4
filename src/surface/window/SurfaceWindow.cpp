// The surface's window: its class, its place, its parent.
#include "surface/window/SurfaceWindow.h"

#include "base/ComCall.h"
#include "base/Handles.h"
#include "base/Module.h"
#include "base/RunTimeError.h"
#include "surface/Surface.h"
#include "surface/window/ParkingWindow.h"
#include "surface/window/WindowClass.h"

#include <utility>

namespace quillet {

namespace {

WindowClass surfaceClass() noexcept { return WindowClass("QuilletSurface"); }

WNDCLASSEXA surfaceDescription(WNDPROC procedure) noexcept
{
    WNDCLASSEXA description = {};
    description.cbSize = sizeof(description);
    description.style = CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW;
    description.lpfnWndProc = procedure;
    // The surface is found through the window's extra bytes: the user-data slot belongs to subclassing.
    description.cbWndExtra = sizeof(void*);
    return description;
}

/// Whether a window further out may still draw its background over what stands in it: a form that opens is
/// painted before its controls, but after they have appeared.
bool mayBePaintedOver(HWND window) noexcept
{
    while (::GetWindowLongA(window, GWL_STYLE) & WS_CHILD) {
        window = ::GetAncestor(window, GA_PARENT);
        if (!(::GetWindowLongA(window, GWL_STYLE) & WS_CLIPCHILDREN))
            return true;
    }
    return false;
}

} // namespace

void SurfaceWindow::unregisterClass() noexcept { surfaceClass().unregister(); }

void SurfaceWindow::create(HWND parent)
{
    WindowClass const own = surfaceClass();
    own.require(surfaceDescription(&SurfaceWindow::procedure));
    HWND const parking = enterParking();
    // Made at its place in the container's window, so that the first change of size is told there.
    RECT const place = parent ? m_surface.inPlace().position() : RECT{0, 0, m_size.cx, m_size.cy};
    m_window = ::CreateWindowExA(WS_EX_NOPARENTNOTIFY, own.name(), nullptr,
                                 WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS |
                                     (m_surface.enabled() ? 0 : WS_DISABLED),
                                 place.left, place.top, place.right - place.left, place.bottom - place.top,
                                 parent ? parent : parking, nullptr, moduleInstance(), nullptr);
    if (!m_window) {
        RunTimeError const reason = lastError();
        leaveParking();
        throw RunTimeError(reason);
    }
    // Windows inherit the layout from right to left of their form. Controls do without: their points count
    // from the left.
    LONG const style = ::GetWindowLongA(m_window, GWL_EXSTYLE);
    if (style & WS_EX_LAYOUTRTL)
        ::SetWindowLongA(m_window, GWL_EXSTYLE, style & ~WS_EX_LAYOUTRTL);
    ::SetWindowLongPtrA(m_window, 0, reinterpret_cast<LONG_PTR>(this));
    m_surface.onWindowMade();
    ignoringErrors([&] { sized(); }); // WM_SIZE came before the surface could be found
}

/// Tells the surface of a change of its size. Windows may send WM_SIZE without one.
void SurfaceWindow::sized()
{
    SIZE const size = clientSize();
    if (size.cx == m_size.cx && size.cy == m_size.cy)
        return;
    m_size = size;
    m_surface.onResize();
}

HWND SurfaceWindow::handle()
{
    if (!m_window)
        create(nullptr);
    return m_window;
}

HDC SurfaceWindow::dc()
{
    if (!m_dc)
        m_dc = ::GetDC(handle());
    return m_dc;
}

SIZE SurfaceWindow::clientSize() const noexcept
{
    RECT client = {};
    if (m_window)
        ::GetClientRect(m_window, &client);
    return {client.right, client.bottom};
}

TwipsPerPixel const& SurfaceWindow::twipsPerPixel() noexcept
{
    if (m_twips.x == 0)
        m_twips = quillet::twipsPerPixel();
    return m_twips;
}

void SurfaceWindow::attach(HWND parent, RECT const* clip)
{
    if (!m_window) {
        create(parent);
        clipTo(clip);
        return;
    }
    if (::GetParent(m_window) != parent)
        ::SetParent(m_window, parent);
    move(clip);
}

void SurfaceWindow::park() noexcept
{
    if (!m_window)
        return;
    ::ShowWindow(m_window, SW_HIDE);
    if (m_surface.inPlace().isActive()) // hiding has led to another activation
        ignoringErrors([&] { show(); });
    else if (m_window)
        ignoringErrors([&] {
            giveUpCapture();
            ::SetParent(m_window, parkingWindow());
        });
}

void SurfaceWindow::move(RECT const* clip)
{
    RECT const& position = m_surface.inPlace().position();
    ::SetWindowPos(handle(), nullptr, position.left, position.top, position.right - position.left,
                   position.bottom - position.top, SWP_NOZORDER | SWP_NOACTIVATE);
    clipTo(clip);
}

void SurfaceWindow::clipTo(RECT const* clip)
{
    RECT const& position = m_surface.inPlace().position();
    RECT visible;
    bool const partly =
        clip && ::IntersectRect(&visible, clip, &position) && !::EqualRect(&visible, &position);
    if (!partly) {
        if (std::exchange(m_clipped, false))
            ::SetWindowRgn(m_window, nullptr, TRUE);
        return;
    }
    ::OffsetRect(&visible, -position.left, -position.top);
    UniqueRegion region(::CreateRectRgnIndirect(&visible));
    if (::SetWindowRgn(m_window, region.get(), TRUE)) {
        region.release(); // the window owns it from here on
        m_clipped = true;
    }
}

void SurfaceWindow::show()
{
    // There is nothing to erase, so nobody has to be asked for it at once.
    constexpr UINT kShownAsItIs =
        SWP_SHOWWINDOW | SWP_DEFERERASE | SWP_NOACTIVATE | SWP_NOZORDER | SWP_NOMOVE | SWP_NOSIZE;
    ::SetWindowPos(handle(), nullptr, 0, 0, 0, 0, kShownAsItIs);
}

void SurfaceWindow::forestallPaint() noexcept
{
    if (!mayBePaintedOver(m_window))
        validate();
}

/// A paint is always of the whole surface, and never of the button inside.
void SurfaceWindow::validate() noexcept
{
    ::RedrawWindow(m_window, nullptr, nullptr, RDW_VALIDATE | RDW_NOINTERNALPAINT | RDW_NOCHILDREN);
}

void SurfaceWindow::hide() noexcept
{
    if (!m_window)
        return;
    ::ShowWindow(m_window, SW_HIDE);
    giveUpCapture();
}

void SurfaceWindow::giveUpCapture() noexcept
{
    HWND const captured = ::GetCapture();
    if (m_window && captured && (captured == m_window || ::IsChild(m_window, captured)))
        ::ReleaseCapture();
}

void SurfaceWindow::takeFocus()
{
    HWND const window = handle();
    HWND const focused = ::GetFocus();
    if (focused != window && !::IsChild(window, focused))
        ::SetFocus(window);
}

void SurfaceWindow::enable(bool enabled) noexcept
{
    if (!m_window)
        return;
    ::EnableWindow(m_window, enabled);
    if (enabled)
        return;
    // Windows takes keyboard and mouse from a disabled window, but not from the windows inside it.
    if (::IsChild(m_window, ::GetFocus()))
        ::SetFocus(nullptr);
    giveUpCapture();
}

void SurfaceWindow::destroy() noexcept
{
    if (!m_window)
        return;
    // From here on messages find no surface: they must not reach a control that is going.
    ::SetWindowLongPtrA(m_window, 0, 0);
    ::DestroyWindow(forget());
    leaveParking();
}

/// Forgets the window and everything that goes with it.
HWND SurfaceWindow::forget() noexcept
{
    m_dc = nullptr;
    m_twips = {};
    m_clipped = m_clickBegun = false;
    return std::exchange(m_window, nullptr);
}

void SurfaceWindow::lost() noexcept
{
    forget();
    leaveParking();
    m_surface.inPlace().leave(InPlace::WindowThen::Destroyed); // it is
}

} // namespace quillet

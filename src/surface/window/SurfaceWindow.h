// The surface's window: made at first need, parked while no container shows it.
#pragma once

#include "base/Scale.h"

#include <windows.h>

namespace quillet {

class Surface;
struct ButtonMessage;

class SurfaceWindow {
public:
    explicit SurfaceWindow(Surface& surface) noexcept : m_surface(surface) {}
    ~SurfaceWindow() { destroy(); }
    SurfaceWindow(SurfaceWindow const&) = delete;
    SurfaceWindow& operator=(SurfaceWindow const&) = delete;

    /// The window, made under the parking window when there is none. Throws when Windows refuses it.
    HWND handle();
    /// The window or null; makes none.
    HWND existing() const noexcept { return m_window; }
    /// For others to draw on: the same DC for as long as the window lives.
    HDC dc();
    /// The client area in pixels; empty while there is no window.
    SIZE clientSize() const noexcept;
    /// Of the screen as this window has it, which never changes: asking takes as long as some fills.
    TwipsPerPixel const& twipsPerPixel() noexcept;

    /// Puts the window, hidden, to its place in a container's window.
    void attach(HWND parent, RECT const* clip);
    /// Hides the window and puts it back under the parking window.
    void park() noexcept;
    /// Follows the container's rectangle. A clip shows only what lies in it, too.
    void move(RECT const* clip);
    void show();
    void hide() noexcept;
    /// Lets go of the mouse where this window or one inside has it. Nobody is told: no mouse has left.
    void giveUpCapture() noexcept;
    /// For whoever is about to paint the whole window without being asked: takes back what Windows still
    /// wants painted of it, unless that may yet be painted over.
    void forestallPaint() noexcept;
    void takeFocus();
    /// Whether the window has the keyboard: asked of Windows, as hosts forge and swallow focus messages.
    bool hasFocus() const noexcept { return m_window && ::GetFocus() == m_window; }
    void enable(bool enabled) noexcept;
    void destroy() noexcept;

    /// For the entry point, when the component goes.
    static void unregisterClass() noexcept;

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;

    void create(HWND parent);
    void clipTo(RECT const* clip);
    void sized();
    LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT passOn(UINT message, WPARAM wParam, LPARAM lParam);
    void paint();
    void validate() noexcept;
    void button(ButtonMessage const& row, WPARAM wParam, LPARAM lParam);
    void beginClick();
    void release(short button, WPARAM wParam, LPARAM lParam);
    void captureLost();
    void mouseLeft();
    void setCursor() const;
    void lost() noexcept;
    HWND forget() noexcept;

    Surface& m_surface;
    HWND m_window = nullptr;
    HDC m_dc = nullptr;
    TwipsPerPixel m_twips = {}; ///< zeros until somebody asks
    SIZE m_size = {};           ///< as the surface was last told; the next window is made in it
    bool m_clipped = false;     ///< a region cuts off what the container does not show
    bool m_clickBegun = false;  ///< the left button went down here, and no release can have gone elsewhere
};

} // namespace quillet

// The surface's font: a standard font object of its own, and notice of changes made inside it.
#pragma once

#include "base/ComPtr.h"

#include <ocidl.h>
#include <windows.h>

namespace quillet {

class Surface;

/// Owns the font object and listens to it while it is held.
class SurfaceFont {
public:
    explicit SurfaceFont(Surface& surface) noexcept;
    ~SurfaceFont();
    SurfaceFont(SurfaceFont const&) = delete;
    SurfaceFont& operator=(SurfaceFont const&) = delete;

    /// Never null: the system's font while none was set, made at first need.
    IFont* get();
    /// The same font with underline, as an object of its own: switching it on the font itself would make the
    /// system build a font, and tell every listener, several times a paint. Throws when the font cannot be
    /// copied.
    IFont* underlined();
    void set(ComPtr<IFont> font) noexcept;

    /// Changes made during this scope are made by painting, and nobody is told.
    class Deaf {
    public:
        explicit Deaf(SurfaceFont& font) noexcept : m_font(font) { ++m_font.m_deaf; }
        ~Deaf() { --m_font.m_deaf; }
        Deaf(Deaf const&) = delete;
        Deaf& operator=(Deaf const&) = delete;

    private:
        SurfaceFont& m_font;
    };

private:
    class Listener;
    void changed();

    Surface& m_surface;
    ComPtr<IFont> m_font;
    ComPtr<IFont> m_underlined; ///< made at first need, dropped when the font changes
    ComPtr<IConnectionPoint> m_point;
    ComPtr<Listener> m_listener;
    DWORD m_cookie = 0;
    int m_deaf = 0;
};

} // namespace quillet

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

    IFont* get() const noexcept { return m_font.get(); }
    void set(ComPtr<IFont> font) noexcept;

    /// Changes made during this scope are the painting's own and go unheard.
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
    ComPtr<IConnectionPoint> m_point;
    ComPtr<Listener> m_listener;
    DWORD m_cookie = 0;
    int m_deaf = 0;
};

} // namespace quillet

// Where a paint goes, for one scope.
#pragma once

#include <windows.h>

namespace quillet {

class Surface;

/// What a container draws the control into, or else the window. The window's DC is borrowed for the paint: a
/// class whose windows own their DCs makes the system walk through all of them whenever one of a form's
/// windows is made or moved.
class PaintTarget {
public:
    explicit PaintTarget(Surface& surface);
    ~PaintTarget();
    PaintTarget(PaintTarget const&) = delete;
    PaintTarget& operator=(PaintTarget const&) = delete;

    HDC dc() const noexcept { return m_dc; }

private:
    HWND m_window; ///< null where the DC is not borrowed
    HDC m_dc;
};

} // namespace quillet

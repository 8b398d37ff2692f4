// One answer to WM_PAINT.
#pragma once

#include <windows.h>

namespace quillet::gallery {

/// Begins the painting of a window and ends it with the scope.
class PaintScope {
public:
    explicit PaintScope(HWND window) noexcept : m_window(window) { ::BeginPaint(window, &m_paint); }
    ~PaintScope() { ::EndPaint(m_window, &m_paint); }
    PaintScope(PaintScope const&) = delete;
    PaintScope& operator=(PaintScope const&) = delete;
    HDC dc() const noexcept { return m_paint.hdc; }

private:
    HWND m_window;
    PAINTSTRUCT m_paint{};
};

} // namespace quillet::gallery

// One of the system's option buttons that a host gives the same look: the floor of paint and hover.
#pragma once

#include "base/Handles.h"
#include "kit/Canvas.h"

#include <windows.h>

namespace quillet::bench {

/// Painted off screen with bare calls, its hover followed by capture. It knows beforehand what a control
/// finds out: its size, its font, where its caption stands, and what its circle looks like.
class BareOption {
public:
    /// The picture has the circle in its left 13 columns.
    BareOption(HWND parent, RECT const& place, HFONT font, kit::Canvas const& picture);
    BareOption(BareOption const&) = delete;
    BareOption& operator=(BareOption const&) = delete;

    HWND window() const noexcept { return m_window.get(); }
    void setColours(COLORREF fore, COLORREF hot) noexcept { m_fore = fore, m_hotFore = hot; }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    void follow();
    void paint() const;

    SIZE m_size;
    HFONT m_font;
    kit::Canvas const& m_picture;
    RECT m_text{};
    COLORREF m_fore = 0;
    COLORREF m_hotFore = 0;
    bool m_hot = false;
    WNDPROC m_system = nullptr;
    UniqueWindow m_window;
};

} // namespace quillet::bench

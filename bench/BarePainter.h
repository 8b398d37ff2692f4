// The picture of a flat button made with bare GDI calls: the floor that a paint is measured against.
#pragma once

#include "base/Handles.h"

#include <windows.h>

#include <string>

namespace quillet::bench {

/// A font of that one's shape, underlined or not.
UniqueFont fontLike(HFONT font, bool underlined);
SIZE sizeOf(HDC dc, HFONT font, std::string const& text);
/// Where something begins whose middle is the middle of the space.
int centred(int space, int length);
/// Fills a rectangle and writes a text into it, in one call.
void fill(HDC dc, RECT const& rectangle, COLORREF color, int x = 0, int y = 0, std::string const& text = {});

struct BareLook {
    COLORREF fore;
    COLORREF back;
    COLORREF border;
    bool focused; ///< a border one pixel thicker, and a frame inside
};

/// Knows beforehand what a control finds out in each paint: its size, its colours, both fonts and where each
/// piece of the caption begins. What is left is the least that makes the picture without flicker.
class BarePainter {
public:
    /// For a window and a caption whose first letter is the access key, centred.
    BarePainter(HWND window, SIZE size, HFONT font, std::string caption);

    void paint(BareLook const& look) const;

private:
    RECT inside(int inset) const { return {inset, inset, m_width - inset, m_height - inset}; }

    HWND m_window;
    int m_width;
    int m_height;
    UniqueFont m_plain;
    UniqueFont m_underlined;
    std::string m_key;
    std::string m_rest;
    int m_y;
    int m_keyAt;
    int m_restAt;
};

} // namespace quillet::bench

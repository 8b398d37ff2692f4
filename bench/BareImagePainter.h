// The picture of a button with light and dark edges and an image, made with bare GDI calls.
#pragma once

#include "base/Handles.h"

#include <windows.h>

#include <string>

namespace quillet::bench {

struct BareImageLook {
    COLORREF fore;
    COLORREF back;
    COLORREF light;
    COLORREF dark;
};

/// A picture as GDI holds it, borrowed; neither for none.
struct BareImage {
    HBITMAP bitmap = nullptr;
    HICON icon = nullptr;
    SIZE size = {};
};

/// Knows beforehand what a control finds out in each paint. What is left is the least that makes the picture
/// without flicker: the same fills, lines, text outputs and the same copy of the image.
class BareImagePainter {
public:
    /// For a border of one pixel and a caption whose first letter is the access key, beside the image.
    BareImagePainter(HWND window, SIZE size, HFONT font, std::string caption, BareImage const& image);

    void paint(BareImageLook const& look) const;

private:
    void edges(HDC dc, BareImageLook const& look) const;
    void image(HDC dc) const;

    HWND m_window;
    int m_width;
    int m_height;
    UniqueFont m_plain;
    UniqueFont m_underlined;
    std::string m_key;
    std::string m_rest;
    BareImage m_image;
    int m_y;
    int m_keyAt;
    int m_restAt;
};

} // namespace quillet::bench

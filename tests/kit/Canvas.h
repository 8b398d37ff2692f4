// Pictures in memory that tests draw with plain GDI calls, none of them the library's, and read back as
// letters.
#pragma once

#include "base/Handles.h"
#include "kit/NotCopied.h"

#include <windows.h>

#include <cstdint>
#include <string>
#include <vector>

namespace quillet::kit {

/// One letter of a text picture and the colour that it stands for.
struct Letter {
    char letter;
    COLORREF color;
};
using Letters = std::vector<Letter>;

/// A 32-bit picture of a fixed size with a device context of its own; black at first.
class Canvas : NotCopied {
public:
    Canvas(int width, int height);
    Canvas(int width, int height, COLORREF background);
    explicit Canvas(HWND window); ///< what its client area shows on the screen

    HDC dc() const noexcept { return m_dc.get(); }
    HBITMAP bitmap() const noexcept { return m_bitmap.get(); }
    int width() const noexcept { return m_width; }
    int height() const noexcept { return m_height; }

    /// Paints everything, or one rectangle (right and bottom exclusive), by its bytes: no GDI call is used.
    void fill(COLORREF color);
    void fill(int left, int top, int right, int bottom, COLORREF color);

    /// The colour of one pixel; CLR_INVALID outside the picture.
    COLORREF at(int x, int y) const;
    /// How many pixels have the colour.
    int count(COLORREF color) const;

    /// One letter a pixel, a line break after each row; '?' for a colour that has no letter.
    std::string picture(Letters const& letters) const;
    std::string picture(Letters const& letters, int left, int top, int right, int bottom) const;

private:
    std::uint32_t* rowOf(int y) const noexcept { return m_pixels + y * m_width; }

    int m_width;
    int m_height;
    std::uint32_t* m_pixels = nullptr; // in the bitmap
    UniqueMemoryDc m_dc;
    UniqueBitmap m_bitmap;
    SelectScope m_selected;
};

/// Says which pixels differ: empty when the two pictures are equal, else their sizes or the first few pixels.
std::string differences(Canvas const& expected, Canvas const& actual);

/// The size of a text in whole pixels.
SIZE textSize(HFONT font, std::wstring const& text);

/// A text as the system's code page has it: what it has no place for becomes something else.
std::wstring inCodePage(std::wstring const& text);

/// Writes a text with its top left corner at a point: only the box changes, which is filled first.
void paintText(Canvas& canvas, RECT const& box, POINT at, std::wstring const& text, HFONT font, COLORREF fore,
               COLORREF back);

/// What a window shows on the screen.
void readWindow(HWND window, Canvas& canvas);

} // namespace quillet::kit

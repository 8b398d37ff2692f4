// The pictures of a flat button and of an image button, made with bare GDI calls: the floor that a paint is
// measured against.
#pragma once

#include "base/Handles.h"
#include "base/RunTimeError.h"

#include <olectl.h>
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

/// How a button is asked for one of its colours.
template <class Button> using GetColour = HRESULT (STDMETHODCALLTYPE Button::*)(OLE_COLOR*);

/// That colour as it is drawn.
template <class Button> COLORREF colourOf(Button& button, GetColour<Button> get)
{
    OLE_COLOR colour = 0;
    check((button.*get)(&colour));
    COLORREF translated = 0;
    check(::OleTranslateColor(colour, nullptr, &translated));
    return translated;
}

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

    /// Off the screen and copied, with the calls that a paint is described by: a DC for the window, a memory
    /// DC and a compatible bitmap, made and freed each time; one text output for each fill and piece of
    /// caption; one copy. Asks whether the window has the focus, as the picture depends on it and messages
    /// may be forged.
    void paint(BareLook const& look) const;
    /// The same fills and texts straight on the window, where each is seen as it comes. Asks for nothing.
    void paintStraight(BareLook const& look) const;

private:
    void compose(HDC dc, BareLook const& look, bool focused) const;
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

/// The same for a button with light and dark edges and an image. What is left is the least that makes the
/// picture without flicker: the same fills, lines, text outputs and the same copy of the image.
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

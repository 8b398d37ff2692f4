// The pictures of a flat button and of an image button, made with bare GDI calls: the floor that a paint is
// measured against.
#pragma once

#include "base/ComPtr.h"
#include "base/Handles.h"
#include "base/RunTimeError.h"

#include <olectl.h>
#include <windows.h>

#include <optional>
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

/// The font that the button writes with; the button keeps it.
template <class Button> HFONT fontOf(Button& button)
{
    ComPtr<IFontDisp> dispatch;
    check(button.get_Font(dispatch.put()));
    HFONT handle = nullptr;
    check(dispatch.as<IFont>(IID_IFont)->get_hFont(&handle));
    return handle;
}

/// A caption whose first letter is the access key: its two pieces, and where each begins.
class BareCaption {
public:
    /// Beside the left edge where one is given, in pixels, else in the middle of the button.
    BareCaption(HWND window, SIZE button, HFONT font, std::string const& text, std::optional<int> left = {});

    HFONT font() const noexcept { return m_plain.get(); }
    /// Fills the rectangle from the first letter on, with the caption in it; leaves its font selected.
    void write(HDC dc, RECT rectangle, COLORREF back) const;

private:
    UniqueFont m_plain;
    UniqueFont m_underlined;
    std::string m_key;
    std::string m_rest;
    int m_y;
    int m_keyAt;
    int m_restAt;
};

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
    BarePainter(HWND window, SIZE size, HFONT font, std::string const& caption);

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
    BareCaption m_caption;
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
    BareImagePainter(HWND window, SIZE size, HFONT font, std::string const& caption, BareImage const& image);

    void paint(BareImageLook const& look) const;

private:
    void edges(HDC dc, BareImageLook const& look) const;
    void image(HDC dc) const;

    HWND m_window;
    int m_width;
    int m_height;
    BareImage m_image;
    BareCaption m_caption;
};

} // namespace quillet::bench

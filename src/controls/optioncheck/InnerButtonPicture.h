// The picture of an inner option button or check box: flat and black on white, whatever the desktop's style.
#pragma once

#include "controls/optioncheck/InnerKind.h"

#include <windows.h>

#include <string_view>

namespace quillet {

/// Where a caption stands, measured once for many paints, as measuring costs as much as writing. Whoever
/// changes the caption or its font empties it.
struct CaptionPlace {
    SIZE size;
    RECT text;
};

/// What a glyph is filled with: white, or the shade of one that is hot or disabled.
inline constexpr COLORREF kGlyphWhite = RGB(255, 255, 255);
inline constexpr COLORREF kGlyphShade = RGB(192, 192, 192); // LTGRAY_BRUSH

/// What the circle or square shows. Colours are as GDI draws them.
struct GlyphLook {
    InnerKind kind;
    long value;      ///< 0 clear, 1 set, 2 the third state
    COLORREF back;   ///< round a circle
    COLORREF inside; ///< within its black outline
};

/// Everything that the picture shows.
struct InnerLook {
    GlyphLook glyph;
    COLORREF fore;
    bool focused;
    std::wstring_view caption; ///< with its access-key mark
    HFONT font;
    CaptionPlace& place;
};

/// Paints everything in a rectangle of that size at the DC's origin, without flicker.
void drawInnerButton(HDC dc, SIZE size, InnerLook const& look);

/// Paints the circle or square alone, in the same place, with its inside filled with the brush.
void drawFilledGlyph(HDC dc, SIZE size, GlyphLook const& look, HBRUSH brush);

} // namespace quillet

// The picture of an inner option button or check box: flat and black on white, whatever the desktop's style.
#pragma once

#include "controls/optioncheck/InnerKind.h"

#include <windows.h>

#include <string_view>

namespace quillet {

/// Where a caption stands, kept from paint to paint: measuring costs as much as writing. Whoever changes the
/// caption or its font empties it.
struct CaptionPlace {
    SIZE size;
    RECT text;
};

/// Everything that the picture shows. Colours are as GDI draws them.
struct InnerLook {
    InnerKind kind;
    long value; ///< 0 clear, 1 set, 2 the third state
    COLORREF fore;
    COLORREF back;
    COLORREF inside; ///< of the circle or square
    bool focused;
    std::wstring_view caption; ///< with its access-key mark
    HFONT font;
    CaptionPlace& place;
};

/// A point inside the circle or square of a button of that height in pixels, clear of its mark. The picture
/// is placed round it.
POINT pointInsideGlyph(long height);

/// Paints everything in a rectangle of that size at the DC's origin, without flicker.
void drawInnerButton(HDC dc, SIZE size, InnerLook const& look);

/// Writes the mark of the third state once more: a flood fill that stops at black has gone over it.
void drawThirdStateMark(HDC dc, long height);

} // namespace quillet

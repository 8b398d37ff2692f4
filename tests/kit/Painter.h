// Makes the pictures that tests expect, with plain GDI calls and none of the library's code.
#pragma once

#include "kit/Canvas.h"

#include <windows.h>

#include <string>

namespace quillet::kit {

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

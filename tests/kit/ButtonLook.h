// What the expected pictures of all command buttons have in common: tints and captions, worked out by hand.
#pragma once

#include "kit/Canvas.h"

#include <ocidl.h>
#include <windows.h>

#include <string>

namespace quillet::kit {

/// The tint of the task-pane scheme: half of the selection colour and half of the face, lifted.
COLORREF tint(COLORREF face, COLORREF selection, bool deep);

/// Where something begins that stands in the middle of a space, halves to the even pixel.
int middle(int space, int length);

/// The size of a caption as it is shown: without its first marker.
SIZE captionSize(std::wstring const& caption, IFont& font);

/// Writes a caption from a point on, the character behind its first marker underlined. Only what is inside
/// the border changes.
void paintCaption(Canvas& canvas, int border, POINT at, std::wstring const& caption, IFont& font,
                  COLORREF fore, COLORREF back);

} // namespace quillet::kit

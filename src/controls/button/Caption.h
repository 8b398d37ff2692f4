// A button's caption: its access key, and its text in up to three pieces.
#pragma once

#include "surface/SurfaceFont.h"

#include <windows.h>

#include <string>
#include <string_view>

namespace quillet {

class OffScreenDC;

/// A caption without its access-key mark. Only the first mark counts; two in a row are no escape.
/// Overflow where the mark stands beyond 16 bits.
struct SplitCaption {
    explicit SplitCaption(std::wstring_view caption);

    std::wstring shown;
    std::wstring accessKey;
    bool marked = false;
    size_t keyAt = 0; ///< where the access key stands in the shown text
};

/// a - 2 * b: what an inset of b on both sides leaves of a.
long between(long a, long b);

/// The first pixel of something that stands in the middle of a space.
long centred(long space, long length);

/// The background that a caption is written on, in pixels.
struct CaptionSpace {
    SIZE size;  ///< of the button
    long inset; ///< of the background: what is drawn round it
    COLORREF back;
    long shift = 0; ///< how far down the caption of a pressed button is
};

/// Writes the caption from a column on, halfway down, the access key underlined. Every piece paints the
/// background from its own beginning to the right end.
void writeCaption(OffScreenDC& canvas, SurfaceFont& font, SplitCaption const& caption,
                  CaptionSpace const& space, long left);

} // namespace quillet

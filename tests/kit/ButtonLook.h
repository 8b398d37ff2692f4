// What the expected pictures of all command buttons have in common: tints and captions, worked out by hand.
#pragma once

#include "kit/Canvas.h"
#include "kit/Fonts.h"

#include <ocidl.h>
#include <windows.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

namespace quillet::kit {

/// The nearest whole number, halves to the even one.
inline int rounded(double value) { return static_cast<int>(std::nearbyint(value)); }

/// The tint of the task-pane scheme: half of the selection colour and half of the face, lifted.
inline COLORREF tint(COLORREF face, COLORREF selection, bool deep)
{
    auto const part = [deep](int of, int with) {
        double const lift = deep ? (255 - of) * 100 / 255.0 : (255 - with) * 100 / 255.0 / 2.0;
        return rounded(lift + (with + of) / 2.0);
    };
    return RGB(part(GetRValue(face), GetRValue(selection)), part(GetGValue(face), GetGValue(selection)),
               part(GetBValue(face), GetBValue(selection)));
}

/// Where something begins that stands in the middle of a space.
inline int middle(int space, int length) { return rounded(space / 2.0 - length / 2.0); }

/// The caption without its first marker, and the marker's place in it; its end for none.
inline std::pair<std::wstring, size_t> shownCaption(std::wstring text)
{
    size_t const marker = std::min(text.find(L'&'), text.size());
    text.erase(marker, 1);
    return {text, marker};
}

inline SIZE captionSize(std::wstring const& caption, IFont& font)
{
    return textSize(handleOf(font), shownCaption(caption).first);
}

/// Writes a caption from a point on, the character behind its first marker underlined. Only what is inside
/// the border changes.
inline void paintCaption(Canvas& canvas, int border, POINT at, std::wstring const& caption, IFont& font,
                         COLORREF fore, COLORREF back)
{
    auto const [shown, marker] = shownCaption(caption);
    auto const piece = [&](std::wstring const& text, bool underlined) {
        auto const own = copyOf(font, underlined);
        RECT const box{at.x, border + 1, canvas.width() - border - 1, canvas.height() - border - 1};
        paintText(canvas, box, at, text, handleOf(*own.get()), fore, back);
        at.x += textSize(handleOf(*own.get()), text).cx;
    };
    piece(shown.substr(0, marker), false);
    piece(shown.substr(marker, 1), true);
    piece(shown.substr(std::min(marker + 1, shown.size())), false);
}

} // namespace quillet::kit

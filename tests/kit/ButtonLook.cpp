// What the expected pictures of all command buttons have in common: tints and captions, worked out by hand.
#include "kit/ButtonLook.h"

#include "kit/Fonts.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quillet::kit {

namespace {

/// The nearest whole number, halves to the even one.
int rounded(double value) { return static_cast<int>(std::nearbyint(value)); }

int tintOf(int face, int selection, bool deep)
{
    double const lift = deep ? (255 - face) * 100 / 255.0 : (255 - selection) * 100 / 255.0 / 2.0;
    return rounded(lift + (selection + face) / 2.0);
}

/// The caption without its first marker, and the marker's place in it; its end for none.
std::pair<std::wstring, size_t> shownCaption(std::wstring text)
{
    size_t const marker = std::min(text.find(L'&'), text.size());
    text.erase(marker, 1);
    return {text, marker};
}

} // namespace

COLORREF tint(COLORREF face, COLORREF selection, bool deep)
{
    return RGB(tintOf(GetRValue(face), GetRValue(selection), deep),
               tintOf(GetGValue(face), GetGValue(selection), deep),
               tintOf(GetBValue(face), GetBValue(selection), deep));
}

int middle(int space, int length) { return rounded(space / 2.0 - length / 2.0); }

SIZE captionSize(std::wstring const& caption, IFont& font)
{
    return textSize(handleOf(font), shownCaption(caption).first);
}

void paintCaption(Canvas& canvas, int border, POINT at, std::wstring const& caption, IFont& font,
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

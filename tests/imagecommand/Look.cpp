// The expected picture of an image button, worked out by hand and painted with plain calls.
#include "Look.h"

#include "kit/Canvas.h"
#include "kit/Fonts.h"

#include <algorithm>
#include <cmath>

namespace quillet::image {

namespace {

int tintOf(int face, int selection, bool deep)
{
    double const lift = deep ? (255 - face) * 100 / 255.0 : (255 - selection) * 100 / 255.0 / 2.0;
    return static_cast<int>(std::nearbyint(lift + (selection + face) / 2.0));
}

void paintRing(kit::Canvas& canvas, Look const& look, int inset)
{
    int const right = canvas.width() - inset;
    int const bottom = canvas.height() - inset;
    canvas.fill(inset, inset, right, inset + 1, look.light);
    canvas.fill(inset, inset, inset + 1, bottom, look.light);
    // The corners at the top right and the bottom left are dark.
    canvas.fill(right - 1, inset, right, bottom, look.dark);
    canvas.fill(inset, bottom - 1, right, bottom, look.dark);
}

/// Writes one piece of the caption and answers where the next begins.
int paintPiece(kit::Canvas& canvas, Look const& look, POINT at, std::wstring const& text, IFont& font)
{
    RECT const box{at.x, look.border + 1, canvas.width() - look.border - 1,
                   canvas.height() - look.border - 1};
    kit::paintText(canvas, box, at, text, kit::handleOf(font), look.fore, look.back);
    return static_cast<int>(at.x + kit::textSize(kit::handleOf(font), text).cx);
}

void paintCaption(kit::Canvas& canvas, Look const& look, IFont& font)
{
    std::wstring shown = look.caption;
    size_t const marker = shown.find(L'&');
    if (marker != std::wstring::npos)
        shown.erase(marker, 1);
    SIZE const text = kit::textSize(kit::handleOf(font), shown);
    POINT at{look.centred ? middle(canvas.width(), text.cx) : look.captionLeft,
             middle(canvas.height(), text.cy)};
    at.x += look.offset;
    at.y += look.offset;
    auto const plain = kit::copyOf(font, false);
    if (marker == std::wstring::npos) {
        paintPiece(canvas, look, at, shown, *plain.get());
        return;
    }
    auto const underlined = kit::copyOf(font, true);
    at.x = paintPiece(canvas, look, at, shown.substr(0, marker), *plain.get());
    at.x = paintPiece(canvas, look, at, shown.substr(marker, 1), *underlined.get());
    paintPiece(canvas, look, at, shown.substr(std::min(marker + 1, shown.size())), *plain.get());
}

} // namespace

int middle(int space, int length) { return static_cast<int>(std::nearbyint(space / 2.0 - length / 2.0)); }

COLORREF taskPaneTint(bool deep)
{
    COLORREF const look = ::GetSysColor(COLOR_BTNFACE);
    COLORREF const selection = ::GetSysColor(COLOR_HIGHLIGHT);
    return RGB(tintOf(GetRValue(look), GetRValue(selection), deep),
               tintOf(GetGValue(look), GetGValue(selection), deep),
               tintOf(GetBValue(look), GetBValue(selection), deep));
}

void paint(kit::Canvas& canvas, Look const& look, IFont& font)
{
    canvas.fill(look.back);
    for (int inset = 0; inset < look.border; ++inset)
        paintRing(canvas, look, inset);
    paintCaption(canvas, look, font);
    if (!look.shown)
        return;
    Plain const& picture = look.shown->picture;
    canvas.fill(look.shown->left, look.shown->top, look.shown->left + picture.width,
                look.shown->top + picture.height, picture.color);
}

std::string differencesFrom(ImageButton& button, Look const& look)
{
    SIZE const size = button.size();
    kit::Canvas expected(size.cx, size.cy);
    kit::Canvas shown(size.cx, size.cy);
    paint(expected, look, *button.font().get());
    kit::readWindow(button.window(), shown);
    return kit::differences(expected, shown);
}

COLORREF pixelAt(ImageButton& button, int x, int y)
{
    SIZE const size = button.size();
    kit::Canvas shown(size.cx, size.cy);
    kit::readWindow(button.window(), shown);
    return shown.at(x, y);
}

} // namespace quillet::image

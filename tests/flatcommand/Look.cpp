// The expected picture of a qvFlatCommand, worked out by hand and painted with plain GDI calls.
#include "Look.h"

#include "kit/Canvas.h"
#include "kit/Fonts.h"

#include <cmath>

namespace quillet::flat {

namespace {

/// The nearest whole number, halves to the even one.
int rounded(double value) { return static_cast<int>(std::nearbyint(value)); }

int borderOf(Look const& look) { return look.bordered ? look.borderWidth + look.emphasis : 0; }

int tintOf(int face, int selection, bool deep)
{
    double const lift = deep ? (255 - face) * 100 / 255.0 : (255 - selection) * 100 / 255.0 / 2.0;
    return rounded(lift + (selection + face) / 2.0);
}

/// The caption without its first marker, and the marker's place in it; npos for none.
std::pair<std::wstring, size_t> shownCaption(std::wstring text)
{
    size_t const marker = text.find(L'&');
    if (marker != std::wstring::npos)
        text.erase(marker, 1);
    return {text, marker};
}

/// Writes one piece of the caption and answers its width.
int paintPiece(kit::Canvas& canvas, Look const& look, POINT at, int inset, std::wstring const& text,
               IFont& font)
{
    RECT const box{at.x, inset + 1, canvas.width() - inset - 1, canvas.height() - inset - 1};
    kit::paintText(canvas, box, at, text, kit::handleOf(font), look.fore, look.back);
    return static_cast<int>(kit::textSize(kit::handleOf(font), text).cx);
}

} // namespace

Look normalLook()
{
    return {::GetSysColor(COLOR_BTNTEXT), ::GetSysColor(COLOR_BTNFACE), ::GetSysColor(COLOR_3DDKSHADOW)};
}

Look hotLook()
{
    return {::GetSysColor(COLOR_3DHIGHLIGHT), ::GetSysColor(COLOR_BTNSHADOW),
            ::GetSysColor(COLOR_3DDKSHADOW)};
}

Look pressedLook()
{
    return {::GetSysColor(COLOR_3DHIGHLIGHT), ::GetSysColor(COLOR_3DDKSHADOW),
            ::GetSysColor(COLOR_3DDKSHADOW)};
}

Look disabledLook()
{
    return {::GetSysColor(COLOR_GRAYTEXT), ::GetSysColor(COLOR_BTNFACE), ::GetSysColor(COLOR_3DDKSHADOW)};
}

Look taskPaneNormalLook()
{
    return {::GetSysColor(COLOR_BTNTEXT), ::GetSysColor(COLOR_BTNFACE), ::GetSysColor(COLOR_BTNSHADOW)};
}

Look taskPaneHotLook()
{
    return {::GetSysColor(COLOR_BTNTEXT),
            tint(::GetSysColor(COLOR_BTNFACE), ::GetSysColor(COLOR_HIGHLIGHT), false),
            ::GetSysColor(COLOR_HIGHLIGHT)};
}

Look taskPanePressedLook()
{
    return {::GetSysColor(COLOR_3DHIGHLIGHT),
            tint(::GetSysColor(COLOR_BTNFACE), ::GetSysColor(COLOR_HIGHLIGHT), true),
            ::GetSysColor(COLOR_HIGHLIGHT)};
}

Look taskPaneDisabledLook()
{
    return {::GetSysColor(COLOR_BTNSHADOW), ::GetSysColor(COLOR_BTNFACE), ::GetSysColor(COLOR_BTNSHADOW)};
}

COLORREF tint(COLORREF face, COLORREF selection, bool deep)
{
    return RGB(tintOf(GetRValue(face), GetRValue(selection), deep),
               tintOf(GetGValue(face), GetGValue(selection), deep),
               tintOf(GetBValue(face), GetBValue(selection), deep));
}

POINT captionPlace(Look const& look, SIZE size, IFont& font)
{
    SIZE const text = kit::textSize(kit::handleOf(font), shownCaption(look.caption).first);
    // Neither the emphasis nor the focus frame moves the caption.
    int const left = (look.bordered ? look.borderWidth : 0) + look.indent;
    return {look.centred ? rounded(size.cx / 2.0 - text.cx / 2.0) : left,
            rounded(size.cy / 2.0 - text.cy / 2.0)};
}

void paint(kit::Canvas& canvas, Look const& look, IFont& font)
{
    int const width = canvas.width();
    int const height = canvas.height();
    int inset = borderOf(look);
    // Emphasis without a border is counted nowhere.
    canvas.fill(look.bordered ? look.border : look.back);
    canvas.fill(inset, inset, width - inset, height - inset, look.back);
    if (look.frame) {
        inset += 2;
        canvas.fill(inset, inset, width - inset, height - inset, *look.frame);
        canvas.fill(inset + 1, inset + 1, width - inset - 1, height - inset - 1, look.back);
    }
    auto const [shown, marker] = shownCaption(look.caption);
    POINT at = captionPlace(look, {width, height}, font);
    auto const plain = kit::copyOf(font, false);
    if (marker == std::wstring::npos) {
        paintPiece(canvas, look, at, inset, shown, *plain.get());
        return;
    }
    auto const underlined = kit::copyOf(font, true);
    at.x += paintPiece(canvas, look, at, inset, shown.substr(0, marker), *plain.get());
    at.x += paintPiece(canvas, look, at, inset, shown.substr(marker, 1), *underlined.get());
    paintPiece(canvas, look, at, inset, shown.substr(std::min(marker + 1, shown.size())), *plain.get());
}

} // namespace quillet::flat

// The expected picture of a qvFlatCommand, worked out by hand and painted with plain GDI calls.
#include "Look.h"

#include "kit/ButtonLook.h"

#include <utility>

namespace quillet::flat {

namespace {

int borderOf(Look const& look) { return look.bordered ? look.borderWidth + look.emphasis : 0; }

Look ofDesktop(int fore, int back, int border, std::wstring const& caption)
{
    return lookOf(::GetSysColor(fore), ::GetSysColor(back), ::GetSysColor(border), caption);
}

/// The task-pane scheme's look of a button that the mouse is over.
Look tinted(int fore, bool deep, std::wstring const& caption)
{
    COLORREF const selection = ::GetSysColor(COLOR_HIGHLIGHT);
    return lookOf(::GetSysColor(fore), kit::tint(::GetSysColor(COLOR_BTNFACE), selection, deep), selection,
                  caption);
}

} // namespace

Look lookOf(COLORREF fore, COLORREF back, COLORREF border, std::wstring const& caption)
{
    return {.fore = fore, .back = back, .border = border, .caption = caption};
}

Look normalLook(std::wstring const& caption)
{
    return ofDesktop(COLOR_BTNTEXT, COLOR_BTNFACE, COLOR_3DDKSHADOW, caption);
}

Look hotLook(std::wstring const& caption)
{
    return ofDesktop(COLOR_3DHIGHLIGHT, COLOR_BTNSHADOW, COLOR_3DDKSHADOW, caption);
}

Look pressedLook(std::wstring const& caption)
{
    return ofDesktop(COLOR_3DHIGHLIGHT, COLOR_3DDKSHADOW, COLOR_3DDKSHADOW, caption);
}

Look disabledLook(std::wstring const& caption)
{
    return ofDesktop(COLOR_GRAYTEXT, COLOR_BTNFACE, COLOR_3DDKSHADOW, caption);
}

Look taskPaneNormalLook(std::wstring const& caption)
{
    return ofDesktop(COLOR_BTNTEXT, COLOR_BTNFACE, COLOR_BTNSHADOW, caption);
}

Look taskPaneHotLook(std::wstring const& caption) { return tinted(COLOR_BTNTEXT, false, caption); }

Look taskPanePressedLook(std::wstring const& caption) { return tinted(COLOR_3DHIGHLIGHT, true, caption); }

Look taskPaneDisabledLook(std::wstring const& caption)
{
    return ofDesktop(COLOR_BTNSHADOW, COLOR_BTNFACE, COLOR_BTNSHADOW, caption);
}

Look emphasised(Look look)
{
    look.emphasis = 1;
    return look;
}

Look focused(Look look)
{
    look.frame = look.back == 0x808080 ? 0xE0E0E0 : 0x808080;
    return emphasised(std::move(look));
}

Look withBorder(int width, Look look)
{
    look.borderWidth = width;
    return look;
}

POINT captionPlace(Look const& look, SIZE size, IFont& font)
{
    SIZE const text = kit::captionSize(look.caption, font);
    // Neither the emphasis nor the focus frame moves the caption.
    int const left = (look.bordered ? look.borderWidth : 0) + look.indent;
    return {look.centred ? kit::middle(size.cx, text.cx) : left, kit::middle(size.cy, text.cy)};
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
    kit::paintCaption(canvas, inset, captionPlace(look, {width, height}, font), look.caption, font, look.fore,
                      look.back);
}

} // namespace quillet::flat

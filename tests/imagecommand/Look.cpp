// The expected picture of an image button, worked out by hand and painted with plain calls.
#include "Look.h"

namespace quillet::image {

namespace {

using B = _qvImageCommand;

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

void paintCaption(kit::Canvas& canvas, Look const& look, IFont& font)
{
    SIZE const text = kit::captionSize(look.caption, font);
    POINT const at{(look.centred ? kit::middle(canvas.width(), text.cx) : look.captionLeft) + look.offset,
                   kit::middle(canvas.height(), text.cy) + look.offset};
    kit::paintCaption(canvas, look.border, at, look.caption, font, look.fore, look.back);
}

} // namespace

COLORREF taskPaneTint(bool deep)
{
    return kit::tint(::GetSysColor(COLOR_BTNFACE), ::GetSysColor(COLOR_HIGHLIGHT), deep);
}

Look lookOf(COLORREF fore, COLORREF back, COLORREF light, COLORREF dark, int border,
            std::wstring const& caption)
{
    return {fore, back, light, dark, border, caption, border + 4};
}

Look plainLook(int border, std::wstring const& caption)
{
    return lookOf(kFore, kBack, kLight, kDark, border, caption);
}

void setColors(ImageButton& button)
{
    button->put_ForeColor(kFore);
    button->put_BackColor(kBack);
    button->put_LightBorderColor(kLight);
    button->put_DarkBorderColor(kDark);
}

void setColorsOfEveryLook(ImageButton& button)
{
    setColors(button);
    for (auto const put : {&B::put_HotForeColor, &B::put_PressedForeColor, &B::put_DisabledForeColor})
        (button.dual()->*put)(kFore);
    for (auto const put : {&B::put_HotBackColor, &B::put_PressedBackColor, &B::put_CheckedBackColor})
        (button.dual()->*put)(kBack);
    for (auto const put :
         {&B::put_HotLightBorderColor, &B::put_PressedLightBorderColor, &B::put_CheckedLightBorderColor})
        (button.dual()->*put)(kLight);
    for (auto const put :
         {&B::put_HotDarkBorderColor, &B::put_PressedDarkBorderColor, &B::put_CheckedDarkBorderColor})
        (button.dual()->*put)(kDark);
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

std::string differencesFrom(ImageButton const& button, Look const& look)
{
    kit::Canvas const shown(button.window());
    kit::Canvas expected(shown.width(), shown.height());
    paint(expected, look, *button.font().get());
    return kit::differences(expected, shown);
}

} // namespace quillet::image

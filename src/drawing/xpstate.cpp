// The tinted backgrounds of the task-pane look, made of the desktop's own colours.
#include "drawing/xpstate.h"

#include "base/Checked.h"
#include "drawing/Colour.h"
#include "drawing/SystemColours.h"

namespace quillet {

namespace {

/// The channels of a colour by signed division. Blue is what is left over, so it is not masked.
struct Channels {
    explicit constexpr Channels(long colour)
        : red(colour % 256), green(colour / 256 % 256), blue(colour / 65536)
    {}

    long red;
    long green;
    long blue;
};

/// One channel of the tint: the mean of both colours, the lighter the darker the button face (deep) or the
/// selection (light) is.
long tinted(long face, long selection, VARIANT_BOOL deep)
{
    double const mean = (selection + face) / 2.0;
    double const tint = deep != VARIANT_FALSE ? (255 - face) * 100 / 255.0 + mean
                                              : (255 - selection) * 100 / 255.0 / 2.0 + mean;
    return Clamp(roundedToEven(tint), 0, 255);
}

/// A comparison as a number.
constexpr long truth(bool holds) { return holds ? -1 : 0; }

/// The bound (or the value) when the comparison holds, else 0: their product, negated.
long term(bool holds, long bound) { return checkedSubtract(0, checkedMultiply(truth(holds), bound)); }

} // namespace

COLORREF XPStateColor(VARIANT_BOOL deep)
{
    COLORREF const face = resolvedColour(colour::kButtonFace, 0);
    COLORREF const selection = resolvedColour(colour::kSelectionHighlight, 0);
    return stateTint(face, selection, deep);
}

COLORREF stateTint(COLORREF face, COLORREF selection, VARIANT_BOOL deep)
{
    Channels const f(static_cast<long>(face));
    Channels const h(static_cast<long>(selection));
    long const green = tinted(f.green, h.green, deep);
    long const red = tinted(f.red, h.red, deep);
    long const blue = tinted(f.blue, h.blue, deep);
    return static_cast<COLORREF>(red + green * 256 + blue * 65536);
}

long Clamp(long value, long lower, long upper)
{
    long const below = term(value < lower, lower);
    long const above = term(value > upper, upper);
    long const within = term(value >= lower && value <= upper, value);
    return checkedAdd(checkedAdd(below, above), within);
}

} // namespace quillet

// Turns the colours of properties and of the desktop scheme into what GDI draws with.
#include "drawing/Colour.h"

#include <olectl.h>

namespace quillet {

COLORREF resolvedColour(OLE_COLOR colour) noexcept { return resolvedColour(colour, colour); }

COLORREF resolvedColour(OLE_COLOR colour, COLORREF untranslated) noexcept
{
    COLORREF result = untranslated;
    ::OleTranslateColor(colour, nullptr, &result); // a failure leaves the result as it is
    return result;
}

} // namespace quillet

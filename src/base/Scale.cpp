// Twips, pixels and HIMETRIC on the screen.
#include "base/Scale.h"

#include "base/Handles.h"

namespace quillet {

Resolution screenResolution() noexcept
{
    // Like the screen, and not of it: for a DC of the screen some systems ask their window server, which
    // takes as long as a fill.
    UniqueMemoryDc const screen(::CreateCompatibleDC(nullptr));
    return {::GetDeviceCaps(screen.get(), LOGPIXELSX), ::GetDeviceCaps(screen.get(), LOGPIXELSY)};
}

TwipsPerPixel twipsPerPixel() noexcept
{
    Resolution const resolution = screenResolution();
    return {static_cast<double>(kTwipsPerInch) / resolution.x,
            static_cast<double>(kTwipsPerInch) / resolution.y};
}

SIZE pixelsOfHimetric(LONG width, LONG height) noexcept
{
    Resolution const resolution = screenResolution();
    return {::MulDiv(width, resolution.x, kHimetricPerInch),
            ::MulDiv(height, resolution.y, kHimetricPerInch)};
}

} // namespace quillet

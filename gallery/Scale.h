// Twips, pixels and HIMETRIC on the screen that the form stands on.
#pragma once

#include "base/Handles.h"

#include <windows.h>

namespace quillet::gallery {

constexpr int kTwipsPerInch = 1440;
constexpr int kHimetricPerInch = 2540;

/// The screen's dots per inch, and what follows from them. MulDiv rounds to the nearest.
struct Scale {
    int dpiX = 96;
    int dpiY = 96;

    static Scale ofScreen() noexcept
    {
        WindowDc const screen(nullptr);
        return {::GetDeviceCaps(screen.get(), LOGPIXELSX), ::GetDeviceCaps(screen.get(), LOGPIXELSY)};
    }

    int pixelsX(long twips) const noexcept { return ::MulDiv(twips, dpiX, kTwipsPerInch); }
    int pixelsY(long twips) const noexcept { return ::MulDiv(twips, dpiY, kTwipsPerInch); }
    long twipsX(int pixels) const noexcept { return ::MulDiv(pixels, kTwipsPerInch, dpiX); }
    long twipsY(int pixels) const noexcept { return ::MulDiv(pixels, kTwipsPerInch, dpiY); }
};

inline long himetricOfTwips(long twips) noexcept { return ::MulDiv(twips, kHimetricPerInch, kTwipsPerInch); }
inline long twipsOfHimetric(long himetric) noexcept
{
    return ::MulDiv(himetric, kTwipsPerInch, kHimetricPerInch);
}

} // namespace quillet::gallery

// Twips, pixels and HIMETRIC on the screen.
#pragma once

#include <windows.h>

namespace quillet {

inline constexpr int kTwipsPerInch = 1440;
inline constexpr int kHimetricPerInch = 2540;

/// The screen's pixels in an inch, and lengths in them, to the nearest.
struct Resolution {
    int x;
    int y;

    int pixelsX(long twips) const noexcept { return ::MulDiv(twips, x, kTwipsPerInch); }
    int pixelsY(long twips) const noexcept { return ::MulDiv(twips, y, kTwipsPerInch); }
    long twipsX(int pixels) const noexcept { return ::MulDiv(pixels, kTwipsPerInch, x); }
    long twipsY(int pixels) const noexcept { return ::MulDiv(pixels, kTwipsPerInch, y); }
};
Resolution screenResolution() noexcept;

/// Twips in one pixel of the screen.
struct TwipsPerPixel {
    double x;
    double y;
};
TwipsPerPixel twipsPerPixel() noexcept;

/// A size in HIMETRIC as pixels of the screen, to the nearest.
SIZE pixelsOfHimetric(LONG width, LONG height) noexcept;

inline long himetricOfTwips(long twips) noexcept { return ::MulDiv(twips, kHimetricPerInch, kTwipsPerInch); }
inline long twipsOfHimetric(long himetric) noexcept
{
    return ::MulDiv(himetric, kTwipsPerInch, kHimetricPerInch);
}

} // namespace quillet

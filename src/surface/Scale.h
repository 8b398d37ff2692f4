// Twips, pixels and HIMETRIC on the screen.
#pragma once

#include <windows.h>

namespace quillet {

inline constexpr int kTwipsPerInch = 1440;
inline constexpr int kHimetricPerInch = 2540;

/// The screen's pixels in an inch.
struct Resolution {
    int x;
    int y;
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

} // namespace quillet

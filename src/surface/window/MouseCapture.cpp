// Which window hears of the mouse wherever it is.
#include "surface/window/MouseCapture.h"

namespace quillet {

bool hasMouseCapture(HWND window) noexcept { return window && ::GetCapture() == window; }

bool setMouseCapture(HWND window, bool capture) noexcept
{
    if (capture == hasMouseCapture(window))
        return false;
    if (capture)
        ::SetCapture(window);
    else
        ::ReleaseCapture();
    return true;
}

} // namespace quillet

// Which window hears of the mouse wherever it is.
#include "surface/window/MouseCapture.h"

namespace quillet {

bool hasMouseCapture(HWND window) noexcept { return window && ::GetCapture() == window; }

void changeMouseCapture(HWND window, bool capture) noexcept
{
    if (capture)
        ::SetCapture(window);
    else
        ::ReleaseCapture();
}

bool setMouseCapture(HWND window, bool capture) noexcept
{
    if (capture == hasMouseCapture(window))
        return false;
    changeMouseCapture(window, capture);
    return true;
}

} // namespace quillet

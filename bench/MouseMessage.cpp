// A mouse message that is timed.
#include "bench/MouseMessage.h"

#include "bench/Rounds.h"
#include "kit/Pump.h"

namespace quillet::bench {

double movedTo(HWND window, POINT at)
{
    POINT screen = at;
    ::ClientToScreen(window, &screen);
    ::SetCursorPos(screen.x, screen.y);
    double const taken =
        microsecondsOf([&] { ::SendMessageW(window, WM_MOUSEMOVE, 0, MAKELPARAM(at.x, at.y)); });
    kit::pumpPending();
    return taken;
}

} // namespace quillet::bench

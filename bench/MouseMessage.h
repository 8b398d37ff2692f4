// A mouse message that is timed.
#pragma once

#include <windows.h>

namespace quillet::bench {

/// Puts the cursor there without letting its own message through, and tells the window by one of ours: what
/// is timed begins with the message, not with the system's way of finding out who gets it.
/// Answers microseconds.
double movedTo(HWND window, POINT at);

} // namespace quillet::bench

// Which window hears of the mouse wherever it is.
#pragma once

#include <windows.h>

namespace quillet {

/// Null has none.
bool hasMouseCapture(HWND window) noexcept;

/// Takes the mouse for a window or gives it up; whether that changed anything. While the cursor is over a
/// button its window holds the capture, so the move that leaves comes to it, too.
bool setMouseCapture(HWND window, bool capture) noexcept;

} // namespace quillet

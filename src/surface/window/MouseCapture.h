// Which window hears of the mouse wherever it is.
#pragma once

#include <windows.h>

namespace quillet {

/// False for no window.
bool hasMouseCapture(HWND window) noexcept;

/// Whether a window's WM_CAPTURECHANGED tells that it has lost the mouse: some systems send it to a window
/// that takes what it has already.
inline bool isCaptureLost(HWND window, LPARAM taker) noexcept
{
    return reinterpret_cast<HWND>(taker) != window;
}

/// Takes the mouse for a window or gives it up; whether that changed anything. While the cursor is over a
/// button its window holds the capture, so the move that leaves comes to it, too.
bool setMouseCapture(HWND window, bool capture) noexcept;

/// The same for whoever has asked who has the mouse and found that it changes.
void changeMouseCapture(HWND window, bool capture) noexcept;

} // namespace quillet

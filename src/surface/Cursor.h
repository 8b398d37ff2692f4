// Where the mouse cursor is.
#pragma once

#include <windows.h>

namespace quillet {

/// Whether the window, and no other window over it, is what lies under the cursor.
bool isUnderCursor(HWND window) noexcept;

} // namespace quillet

// The library's message boxes.
#pragma once

#include <windows.h>

namespace quillet {

/// Shows the library's name and version until the user closes it.
void showAboutBox(HWND owner) noexcept;

/// Tells a form's designer of a mistake; owned like the about box.
void showExclamation(HWND owner, wchar_t const* text) noexcept;

} // namespace quillet

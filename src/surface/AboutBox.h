// What every control's ShowAbout shows.
#pragma once

#include <windows.h>

namespace quillet {

/// Shows the library's name and version until the user closes it.
void showAboutBox(HWND owner) noexcept;

} // namespace quillet

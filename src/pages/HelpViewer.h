// The system's viewer of help files.
#pragma once

#include <windows.h>

namespace quillet {

/// Shows a topic of the help file. The window belongs to the caller's. False where it could not be shown.
bool showHelpTopic(HWND caller, DWORD topic);

} // namespace quillet

// A modal dialog of the system's, for programs that open one in the middle of an event.
#pragma once

#include <windows.h>

#include <functional>

namespace quillet::kit {

/// Opens the dialog at a point of its owner, takes the mouse from whoever has it, runs body in the dialog's
/// own loop and ends it.
void runDialog(HWND owner, POINT at, std::function<void(HWND dialog)> const& body);

} // namespace quillet::kit

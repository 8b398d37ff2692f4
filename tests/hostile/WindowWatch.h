// Another party's eyes on a control's windows: found by class, subclassed like anybody may do.
#pragma once

#include <windows.h>

namespace quillet::hostile {

class Life;

/// The first window of a control's surface in a form's; null when there is none.
HWND surfaceIn(HWND form);

/// Subclasses the window once: the life is told "Before(message)" and "After(message)" for each message.
void watchMessages(HWND window, Life& life);
/// Windows that are gone are not watched any more.
void forgetWatches();

} // namespace quillet::hostile

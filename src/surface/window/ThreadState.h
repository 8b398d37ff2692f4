// What exists once per user-interface thread: plain values in one struct.
#pragma once

#include <windows.h>

namespace quillet {

class CursorMoment;

/// One thread's shared state; zero at first.
struct ThreadState {
    HWND parkingWindow; ///< hidden parent of every surface that is not in a container's window
    long surfaces; ///< surfaces with a window on this thread; the last one takes the parking window along
    bool lettingMessagesRun;    ///< a control handles the thread's waiting messages
    CursorMoment* cursorMoment; ///< the innermost scope that fixes the cursor's place
    HWND toolTip;               ///< shared by all controls; keeps its value when the window is gone
    bool toolTipCreated;        ///< set for good when the tooltip window is made
    long toolTipUsers;          ///< controls that set up their tooltip, design-time ones included, and live
};

/// The calling thread's state. Throws std::bad_alloc when there is no memory for it.
ThreadState& threadState();

/// For the entry point: makes the slot, gives up one thread's state, gives up the slot.
bool attachThreadStates() noexcept;
void detachThreadState() noexcept;
void detachThreadStates() noexcept;

} // namespace quillet

// The tooltip windows of a thread, and what is sent to them.
#pragma once

#include "kit/MessageWatch.h"

#include <commctrl.h>
#include <windows.h>

#include <string>
#include <vector>

namespace quillet::winsvc {

/// The tooltip windows that the calling thread has.
std::vector<HWND> toolTipWindows();

/// The only one; null, and a failure, when there is none or more than one.
HWND theToolTipWindow();

/// What the tooltip window shows, or would show next.
std::string textOf(HWND toolTip);

/// A message to a tooltip window, with what its parameters pointed at.
struct ToolTipMessage {
    HWND to;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    TTTOOLINFOA tool; ///< of TTM_ADDTOOLA
    MSG relayed;      ///< of TTM_RELAYEVENT
};

/// Keeps the messages that the thread sends to tooltip windows to tell them something: those of their own
/// class alone.
class ToolTipWatch {
public:
    ToolTipWatch();

    std::vector<ToolTipMessage> messages;

    std::vector<UINT> numbers() const;
    /// The relayed messages' numbers.
    std::vector<UINT> relayed() const;

private:
    void note(MSG const& passing);

    kit::MessageWatch m_watch;
};

} // namespace quillet::winsvc

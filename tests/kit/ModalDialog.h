// Modal dialogs: one that a program opens in the middle of an event, and those that a test waits for.
#pragma once

#include "kit/NotCopied.h"

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace quillet::kit {

/// Opens the dialog at a point of its owner, takes the mouse from whoever has it, runs body in the dialog's
/// own loop and ends it.
void runDialog(HWND owner, POINT at, std::function<void(HWND dialog)> const& body);

/// While it lives, body gets each dialog of this thread's that shows, time and again until it is gone. One at
/// a time.
class DialogWatch : NotCopied {
public:
    explicit DialogWatch(std::function<void(HWND dialog)> body);
    ~DialogWatch();

private:
    UINT_PTR m_timer;
};

/// The texts of the windows in a dialog, in their order.
std::vector<std::wstring> textsIn(HWND dialog);

/// The titles of a property frame's pages; none where the dialog is no such frame.
std::vector<std::wstring> pageTitles(HWND dialog);

} // namespace quillet::kit

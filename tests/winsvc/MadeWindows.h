// What this program asks Windows for when it makes windows with the ANSI function.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace quillet::winsvc {

/// The arguments of one CreateWindowExA.
struct MadeWindow {
    bool controlsInitialised; ///< whether InitCommonControls had been called
    DWORD extendedStyle;
    std::string className;
    bool hasTitle;
    DWORD style;
    int place[4]; ///< x, y, width, height
    HWND parent;
    HMENU menu;
    HINSTANCE instance;
    void* data;
};

/// While it lives, notes the windows that this program itself makes. One at a time.
class MadeWindows {
public:
    MadeWindows();
    ~MadeWindows();
    MadeWindows(MadeWindows const&) = delete;
    MadeWindows& operator=(MadeWindows const&) = delete;

    std::vector<MadeWindow> windows;
    bool controlsInitialised = false;
    bool failing = false; ///< from here on no window is made
};

} // namespace quillet::winsvc

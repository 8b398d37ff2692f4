// What the tests' help viewer was asked, as its library hands it out.
#pragma once

#include <windows.h>

namespace quillet::pages {

struct ViewerCall {
    HWND caller;
    wchar_t file[MAX_PATH];
    UINT command;
    DWORD_PTR topic;
    bool fails; ///< the next call shows nothing
};

} // namespace quillet::pages

// A help viewer that records what it is asked to show, in the place of the system's.
#pragma once

#include <windows.h>

#include <string>

namespace quillet::pages {

struct HelpCall {
    HWND caller = nullptr;
    std::wstring file;
    UINT command = 0;
    DWORD_PTR topic = 0;
};

/// While it lives, the component that loads the system's help viewer gets this one. One at a time.
class FakeHelp {
public:
    explicit FakeHelp(HMODULE component);
    ~FakeHelp();
    FakeHelp(FakeHelp const&) = delete;
    FakeHelp& operator=(FakeHelp const&) = delete;

    HelpCall last;
    bool shows = true; ///< whether it opens its window

private:
    HMODULE m_component;
};

} // namespace quillet::pages

// A help viewer that records what it is asked to show, in the place of the system's.
#pragma once

#include "base/Handles.h"

#include <windows.h>

#include <string>

namespace quillet::pages {

struct HelpCall {
    HWND caller = nullptr;
    std::wstring file;
    UINT command = 0;
    DWORD_PTR topic = 0;
};

/// While one lives, whoever loads the system's help viewer by its name gets this one.
class FakeHelp {
public:
    FakeHelp();
    FakeHelp(FakeHelp const&) = delete;
    FakeHelp& operator=(FakeHelp const&) = delete;

    /// What was asked since the last time.
    HelpCall takeLast() const;
    /// The next call shows nothing.
    void fail() const;

private:
    UniqueLibrary m_viewer;
};

} // namespace quillet::pages

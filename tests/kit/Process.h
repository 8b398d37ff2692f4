// Other programs, run to their end.
#pragma once

#include "kit/Library.h"

#include <windows.h>

#include <memory>
#include <string>

namespace quillet::kit {

struct HandleCloser {
    void operator()(HANDLE handle) const noexcept { ::CloseHandle(handle); }
};
using KernelHandle = std::unique_ptr<void, HandleCloser>;

constexpr DWORD kNotStarted = 0xFFFF;

/// The program's exit code; kNotStarted also where it does not end within a minute.
inline DWORD run(std::wstring command)
{
    constexpr DWORD kLimit = 60000; // milliseconds
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr,
                          nullptr, &startup, &process))
        return kNotStarted;
    KernelHandle const owned(process.hProcess);
    KernelHandle const thread(process.hThread);
    if (::WaitForSingleObject(owned.get(), kLimit) != WAIT_OBJECT_0)
        ::TerminateProcess(owned.get(), kNotStarted);
    DWORD code = kNotStarted;
    ::GetExitCodeProcess(owned.get(), &code);
    return code;
}

/// Runs regsvr32 with the arguments and the component's path behind them; 0 for success.
inline DWORD regsvr32(wchar_t const* arguments)
{
    return run(std::wstring(L"regsvr32.exe /s ") + arguments + L" \"" + Library::path() + L"\"");
}

} // namespace quillet::kit

// Runs regsvr32 on the built component.
#include "Regsvr32.h"

#include "base/Handles.h"
#include "kit/Library.h"

namespace quillet {

namespace {

struct KernelHandleTraits {
    using Handle = HANDLE;
    static void close(HANDLE handle) noexcept { ::CloseHandle(handle); }
};
using KernelHandle = UniqueHandle<KernelHandleTraits>;

constexpr DWORD kFailedToStart = 1000;

} // namespace

DWORD regsvr32(std::wstring const& arguments)
{
    std::wstring command = L"regsvr32.exe /s " + arguments + L" \"" + kit::Library::path() + L"\"";
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                          &process))
        return kFailedToStart;
    KernelHandle const owned(process.hProcess);
    KernelHandle const thread(process.hThread);
    ::WaitForSingleObject(owned.get(), INFINITE);
    DWORD code = kFailedToStart;
    ::GetExitCodeProcess(owned.get(), &code);
    return code;
}

} // namespace quillet

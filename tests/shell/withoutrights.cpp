// Runs a command while nobody may change the machine's classes: withoutrights COMMAND…
// For trying what an installer says to a user without the rights.
#include "shell/RegistryKey.h"

#include <windows.h>

#include <sddl.h>

#include <cstdio>
#include <memory>
#include <string>

using namespace quillet;

namespace {

struct LocalFreeDeleter {
    void operator()(void* memory) const noexcept { ::LocalFree(memory); }
};
using Descriptor = std::unique_ptr<void, LocalFreeDeleter>;

/// Denies everyone to set values and to make keys, and gives back the old rights at its end.
class MachineClassesWithoutRights {
public:
    MachineClassesWithoutRights()
    {
        HKEY opened = nullptr;
        checkStatus(
            ::RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"Software\\Classes", 0, READ_CONTROL | WRITE_DAC, &opened));
        m_classes.reset(opened);
        DWORD size = sizeof m_old;
        checkStatus(::RegGetKeySecurity(m_classes.get(), DACL_SECURITY_INFORMATION, m_old, &size));
        PSECURITY_DESCRIPTOR made = nullptr;
        ::ConvertStringSecurityDescriptorToSecurityDescriptorW(L"D:(D;;0x6;;;WD)(A;;KA;;;WD)",
                                                               SDDL_REVISION_1, &made, nullptr);
        Descriptor const denial(made);
        checkStatus(::RegSetKeySecurity(m_classes.get(), DACL_SECURITY_INFORMATION, denial.get()));
    }
    ~MachineClassesWithoutRights() { ::RegSetKeySecurity(m_classes.get(), DACL_SECURITY_INFORMATION, m_old); }
    MachineClassesWithoutRights(MachineClassesWithoutRights const&) = delete;
    MachineClassesWithoutRights& operator=(MachineClassesWithoutRights const&) = delete;

private:
    UniqueKey m_classes;
    BYTE m_old[1024];
};

DWORD run(std::wstring command)
{
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    if (!::CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start,
                          &process))
        return ::GetLastError();
    ::WaitForSingleObject(process.hProcess, INFINITE);
    DWORD code = 0;
    ::GetExitCodeProcess(process.hProcess, &code);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return code;
}

} // namespace

int main(int count, char* arguments[])
{
    std::wstring command;
    for (int each = 1; each < count; ++each) {
        std::string const word = arguments[each];
        command += std::wstring(word.begin(), word.end()) + L' ';
    }
    try {
        MachineClassesWithoutRights const denied;
        return static_cast<int>(run(command));
    } catch (RunTimeError const& error) {
        std::fprintf(stderr, "withoutrights: failed with %08lx\n",
                     static_cast<unsigned long>(error.result()));
        return 1;
    }
}

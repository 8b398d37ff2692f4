// The component as Windows knows it: the only two variables of the whole process.
#include "base/Module.h"

namespace quillet {

namespace {

HINSTANCE g_instance = nullptr;
LONG volatile g_liveObjects = 0;

} // namespace

HINSTANCE moduleInstance() noexcept { return g_instance; }
void setModuleInstance(HINSTANCE instance) noexcept { g_instance = instance; }

std::wstring modulePath()
{
    wchar_t path[MAX_PATH];
    DWORD const length = ::GetModuleFileNameW(g_instance, path, MAX_PATH);
    return length < MAX_PATH ? std::wstring(path, length) : std::wstring();
}

long liveObjects() noexcept { return g_liveObjects; }
void addLiveObject() noexcept { ::InterlockedIncrement(&g_liveObjects); }
void removeLiveObject() noexcept { ::InterlockedDecrement(&g_liveObjects); }

} // namespace quillet

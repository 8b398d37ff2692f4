// The file system: opening and reading files in memory. Nothing is written.
#include "platform/Files.h"

#include <windows.h>

#include <algorithm>

namespace quillet::fuzz {

std::map<std::wstring, File>& files()
{
    static std::map<std::wstring, File> all;
    return all;
}

} // namespace quillet::fuzz

using quillet::fuzz::File;

HANDLE WINAPI CreateFileW(LPCWSTR path, DWORD access, DWORD, LPSECURITY_ATTRIBUTES, DWORD, DWORD, HANDLE)
{
    auto const found = quillet::fuzz::files().find(path);
    if (access != GENERIC_READ || found == quillet::fuzz::files().end())
        return INVALID_HANDLE_VALUE;
    return &found->second;
}

BOOL WINAPI GetFileSizeEx(HANDLE file, LARGE_INTEGER* size)
{
    size->QuadPart = static_cast<File*>(file)->said;
    return TRUE;
}

BOOL WINAPI ReadFile(HANDLE file, LPVOID target, DWORD size, LPDWORD got, LPOVERLAPPED)
{
    std::string const& bytes = static_cast<File*>(file)->bytes;
    *got = static_cast<DWORD>(std::min<std::size_t>(size, bytes.size()));
    std::copy_n(bytes.data(), *got, static_cast<char*>(target));
    return TRUE;
}

BOOL WINAPI WriteFile(HANDLE, LPCVOID, DWORD, LPDWORD, LPOVERLAPPED) { return FALSE; }
BOOL WINAPI CloseHandle(HANDLE) { return TRUE; }

DWORD WINAPI GetFullPathNameW(LPCWSTR path, DWORD size, LPWSTR target, LPWSTR*)
{
    std::wstring const text = path;
    if (text.size() >= size)
        return static_cast<DWORD>(text.size() + 1);
    std::copy_n(text.data(), text.size() + 1, target);
    return static_cast<DWORD>(text.size());
}

// What the gallery says to whoever started it. A program with windows has no console of its own.
#include "gallery/app/Console.h"

#include "gallery/form/FileBytes.h"
#include "gallery/form/FormReader.h"

#include <windows.h>

#include <string>

namespace quillet::gallery {

namespace {

bool write(HANDLE file, std::wstring_view text)
{
    if (!file || file == INVALID_HANDLE_VALUE)
        return false;
    DWORD written = 0;
    std::string const bytes = utf8(text);
    return ::WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) != FALSE;
}

bool writeToParentsConsole(std::wstring_view text)
{
    if (!::AttachConsole(ATTACH_PARENT_PROCESS) && ::GetLastError() != ERROR_ACCESS_DENIED)
        return false;
    UniqueFile const console(::CreateFileW(L"CONOUT$", GENERIC_READ | GENERIC_WRITE,
                                           FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0,
                                           nullptr));
    if (console.get() == INVALID_HANDLE_VALUE)
        return false;
    DWORD written = 0;
    return ::WriteConsoleW(console.get(), text.data(), static_cast<DWORD>(text.size()), &written, nullptr) !=
           FALSE;
}

} // namespace

std::string utf8(std::wstring_view text)
{
    int const count = static_cast<int>(text.size());
    int const needed = ::WideCharToMultiByte(CP_UTF8, 0, text.data(), count, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(needed), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, text.data(), count, bytes.data(), needed, nullptr, nullptr);
    return bytes;
}

void say(Stream stream, std::wstring_view text)
{
    bool const isError = stream == Stream::Error;
    if (write(::GetStdHandle(isError ? STD_ERROR_HANDLE : STD_OUTPUT_HANDLE), text) ||
        writeToParentsConsole(text))
        return;
    if (isError)
        ::MessageBoxW(nullptr, std::wstring(text).c_str(), L"Gallery", MB_OK | MB_ICONERROR);
}

void sayWarning(FormError const& warning) { say(Stream::Error, L"gallery: " + warning.text() + L"\n"); }

} // namespace quillet::gallery

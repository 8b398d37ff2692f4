// Reads the bytes of a form file.
#include "gallery/FormReader.h"
#include "gallery/UniqueFile.h"

#include <windows.h>

namespace quillet::gallery {

namespace {

/// Far beyond any real form, and small enough for a 32-bit process.
constexpr LONGLONG kLargestForm = LONGLONG{8} * 1024 * 1024;

std::string bytesOf(std::wstring const& path)
{
    UniqueFile const file(::CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                        FILE_ATTRIBUTE_NORMAL, nullptr));
    LARGE_INTEGER size{};
    if (file.get() == INVALID_HANDLE_VALUE || !::GetFileSizeEx(file.get(), &size))
        throw FormError{path, 0, L"the file cannot be opened"};
    if (size.QuadPart > kLargestForm)
        throw FormError{path, 0, L"the file is too large for a form"};
    std::string bytes(static_cast<std::size_t>(size.QuadPart), '\0');
    DWORD count = 0;
    if (!::ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr))
        throw FormError{path, 0, L"the file cannot be read"};
    bytes.resize(count);
    return bytes;
}

} // namespace

FormTree readFormFile(std::wstring const& path) { return readForm(bytesOf(path), path); }

} // namespace quillet::gallery

// Whole files as bytes.
#include "gallery/form/FileBytes.h"

#include "gallery/form/FormReader.h"

namespace quillet::gallery {

namespace {

/// Far beyond any real form, and small enough for a 32-bit process.
constexpr LONGLONG kLargest = LONGLONG{8} * 1024 * 1024;

constexpr std::wstring_view kSeparators = L"\\/";

} // namespace

std::string fileBytes(std::wstring const& path)
{
    UniqueFile const file(::CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                        FILE_ATTRIBUTE_NORMAL, nullptr));
    LARGE_INTEGER size{};
    if (file.get() == INVALID_HANDLE_VALUE || !::GetFileSizeEx(file.get(), &size))
        throw FormError{path, 0, L"the file cannot be opened"};
    if (size.QuadPart > kLargest)
        throw FormError{path, 0, L"the file is too large for a form"};
    std::string bytes(static_cast<std::size_t>(size.QuadPart), '\0');
    DWORD count = 0;
    if (!::ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr))
        throw FormError{path, 0, L"the file cannot be read"};
    bytes.resize(count);
    return bytes;
}

void writeFileBytes(std::wstring const& path, std::string_view bytes)
{
    UniqueFile const file(::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                        FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD written = 0;
    if (file.get() == INVALID_HANDLE_VALUE ||
        !::WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) ||
        written != bytes.size())
        throw FormError{path, 0, L"the file cannot be written"};
}

std::wstring folderOf(std::wstring const& path)
{
    std::wstring full(32768, L'\0');
    full.resize(::GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
    std::size_t const slash = full.find_last_of(kSeparators);
    return slash == std::wstring::npos ? L"." : full.substr(0, slash);
}

std::wstring fileNameOf(std::wstring const& path)
{
    std::size_t const slash = path.find_last_of(kSeparators);
    return slash == std::wstring::npos ? path : path.substr(slash + 1);
}

std::wstring withExtension(std::wstring const& path, std::wstring_view extension)
{
    std::size_t const name = path.size() - fileNameOf(path).size();
    std::size_t const dot = path.find_last_of(L'.');
    bool const hasOne = dot != std::wstring::npos && dot >= name;
    return path.substr(0, hasOne ? dot : path.size()).append(extension);
}

} // namespace quillet::gallery

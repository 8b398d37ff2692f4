// Files: an open one, and whole ones as bytes.
#pragma once

#include "base/Handles.h"

#include <windows.h>

#include <string>
#include <string_view>

namespace quillet::gallery {

/// An open file or console.
struct FileTraits {
    using Handle = HANDLE;
    static void close(HANDLE file) noexcept
    {
        if (file != INVALID_HANDLE_VALUE)
            ::CloseHandle(file);
    }
};
using UniqueFile = UniqueHandle<FileTraits>;

/// Throws FormError for a file that cannot be read, or is larger than anything of a form.
std::string fileBytes(std::wstring const& path);

/// Replaces the file; throws FormError when that fails.
void writeFileBytes(std::wstring const& path, std::string_view bytes);

/// What stands before the last backslash or slash, and behind it.
std::wstring folderOf(std::wstring const& path);
std::wstring fileNameOf(std::wstring const& path);

/// The path with another extension, which has its dot.
std::wstring withExtension(std::wstring const& path, std::wstring_view extension);

} // namespace quillet::gallery

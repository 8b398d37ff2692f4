// Owns an open file or console.
#pragma once

#include "base/Handles.h"

#include <windows.h>

namespace quillet::gallery {

struct FileTraits {
    using Handle = HANDLE;
    static void close(HANDLE file) noexcept
    {
        if (file != INVALID_HANDLE_VALUE)
            ::CloseHandle(file);
    }
};
using UniqueFile = UniqueHandle<FileTraits>;

} // namespace quillet::gallery

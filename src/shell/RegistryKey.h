// Owner type of registry keys, and their results as exceptions.
#pragma once

#include "base/Handles.h"
#include "base/RunTimeError.h"

#include <windows.h>

namespace quillet {

struct RegistryKeyTraits {
    using Handle = HKEY;
    static void close(HKEY key) noexcept { ::RegCloseKey(key); }
};
using UniqueKey = UniqueHandle<RegistryKeyTraits>;

/// Throws when a registry function has failed.
inline void checkStatus(LSTATUS status) { check(HRESULT_FROM_WIN32(static_cast<DWORD>(status))); }

} // namespace quillet

// Writes the type library's file from its descriptions.
#pragma once

#include <oaidl.h>
#include <windows.h>

namespace quillet {

/// Throws when the file cannot be written or a description is refused.
void writeLibrary(SYSKIND system, wchar_t const* file);

} // namespace quillet

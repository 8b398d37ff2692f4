// The registry's key of all classes, for the machine or for the user.
#pragma once

#include "shell/RegistryKey.h"

#include <windows.h>

#include <string>

namespace quillet {

/// For whom the component is registered.
enum class Scope { Machine, User };

/// Throws E_ACCESSDENIED where the rights are missing. HKEY_CLASSES_ROOT merges both scopes, and writing to
/// it reaches the user's where the user has the class: so the two are always named apart.
UniqueKey classesForWriting(Scope scope);

/// A key's own value; empty when there is none.
std::wstring classesValue(Scope scope, std::wstring const& key, REGSAM view = 0);

/// Whether two paths name one file, as far as their spelling tells.
bool samePath(std::wstring const& path, std::wstring const& other) noexcept;

} // namespace quillet

// What the registry holds about classes, to be compared.
#pragma once

#include <windows.h>

#include <map>
#include <string>
#include <vector>

namespace quillet {

/// Keys and values below Software\Classes, their paths in lower case. A key stands as its path with a
/// backslash behind it and no text; a value as its path, "@" and its name, and its text.
using Snapshot = std::map<std::wstring, std::wstring>;

/// Everything. That takes a while.
Snapshot allClasses(HKEY root);
/// The given keys and all below them.
Snapshot classesBelow(HKEY root, std::vector<std::wstring> const& keys);

/// A line for each key and value that is missing, is too much or has another text; none when the two are
/// equal.
std::vector<std::wstring> differences(Snapshot const& expected, Snapshot const& actual);

} // namespace quillet

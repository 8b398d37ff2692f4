// What the registry holds about the type library and the interfaces in it: one row for each value.
#pragma once

#include "shell/RegistryRows.h"

#include <oaidl.h>

#include <string>
#include <vector>

namespace quillet {

/// What the system writes for registerTypeLibrary, for installers, which write it themselves.
/// helpFolder is where the help file lies. Throws when the library cannot be read.
std::vector<RegistryRow> typeLibraryRows(ITypeLib& library, std::wstring const& componentPath,
                                         std::wstring const& helpFolder);

} // namespace quillet

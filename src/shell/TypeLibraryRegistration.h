// Registers the type library, and with it the interfaces that it describes.
#pragma once

#include "shell/ClassesKey.h"

#include <string>

namespace quillet {

/// Registers the library that the component carries. Throws when it cannot be.
void registerTypeLibrary(Scope scope, std::wstring const& componentPath);

/// Removes it; does nothing when it is not registered, or from another file.
void unregisterTypeLibrary(Scope scope, std::wstring const& componentPath);

} // namespace quillet

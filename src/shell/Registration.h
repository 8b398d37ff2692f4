// Registers the component's classes and its type library, and removes them again.
#pragma once

#include "shell/ClassesKey.h"

namespace quillet {

/// All or nothing; again and again with the same result. Throws when the registry refuses.
void registerComponent(Scope scope);

/// For the machine, or where the rights for that are missing, for the user.
void registerWhereAllowed();

/// Removes what registerComponent wrote, unless it belongs to a copy of the component in another file.
void unregisterComponent(Scope scope);

} // namespace quillet

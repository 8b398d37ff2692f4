// The classes that the component makes: one row each.
#pragma once

#include "surface/ControlClass.h"

#include <windows.h>

#include <span>

namespace quillet {

/// A class that a host can create.
struct ClassRow {
    ControlClass const& controlClass;
    wchar_t const* description; ///< as a designer's toolbox shows it
    int toolboxBitmap;          ///< of the component's resources
};

std::span<ClassRow const> classTable() noexcept;

/// The row of a class; null when the component does not have it.
ClassRow const* findClass(REFCLSID classId) noexcept;

} // namespace quillet

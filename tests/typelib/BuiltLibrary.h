// The built type library, loaded as a component loads its own, and the text that describes what it must be.
#pragma once

#include "base/ComPtr.h"

#include <oaidl.h>
#include <windows.h>

#include <string>
#include <vector>

namespace quillet {

ComPtr<ITypeLib> builtLibrary();

/// The lines of library.txt, which is written by hand.
std::vector<std::string> referenceLines();

} // namespace quillet

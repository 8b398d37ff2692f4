// Reads a type library back and describes it line by line, in the words of library.txt.
#pragma once

#include <oaidl.h>
#include <windows.h>

#include <string>
#include <vector>

namespace quillet {

std::vector<std::string> describe(ITypeLib& library);

} // namespace quillet

// The words in which library.txt speaks of flags, names and texts.
#pragma once

#include "base/Bstr.h"

#include <oaidl.h>
#include <windows.h>

#include <cstdio>
#include <string>

namespace quillet {

/// Each flag's name with a space before it.
std::string libraryFlagNames(unsigned flags);
std::string typeFlagNames(unsigned flags);
std::string functionFlagNames(unsigned flags);

std::string narrow(std::wstring_view text);
std::string quoted(std::wstring_view text);
std::string guidText(GUID const& id);

std::string nameOf(ITypeInfo& info, MEMBERID member = MEMBERID_NIL);
Bstr helpOf(ITypeInfo& info, MEMBERID member = MEMBERID_NIL);
std::string nameOfLibrary(ITypeLib& library);

template <class... Values> std::string format(char const* pattern, Values... values)
{
    char text[512];
    std::snprintf(text, sizeof text, pattern, values...);
    return text;
}

} // namespace quillet

// Names of classes, controls and properties: the same whatever their case.
#pragma once

#include <windows.h>

#include <string_view>

namespace quillet::gallery {

inline bool sameName(std::wstring_view a, std::wstring_view b) noexcept
{
    if (a.size() != b.size())
        return false;
    return a.empty() || ::CompareStringOrdinal(a.data(), static_cast<int>(a.size()), b.data(),
                                               static_cast<int>(b.size()), TRUE) == CSTR_EQUAL;
}

} // namespace quillet::gallery

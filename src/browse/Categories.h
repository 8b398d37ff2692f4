// The headings under which a property browser shows properties.
#pragma once

#include <windows.h>

#include <string_view>

namespace quillet {

/// The headings that every property browser knows, by their published numbers.
enum class Category : long { Misc = -2, Font = -3, Position = -4, Appearance = -5, Behavior = -6, Text = -9 };

/// Misc for a property that is not known.
Category categoryOf(std::wstring_view property) noexcept;

/// Null for a number that is no heading of ours.
wchar_t const* nameOf(Category category) noexcept;

} // namespace quillet

// One value of a form file, read from what stands behind the equals sign.
#pragma once

#include "gallery/form/FormTree.h"

#include <string_view>
#include <variant>

namespace quillet::gallery {

/// Why a piece of text is no value.
struct ValueFault {
    wchar_t const* reason;
};

/// Reads a number, a hexadecimal number, a string, a reference into the companion file or a shortcut;
/// a comment may follow. Hexadecimal digits always make a 32-bit integer, with the closing & or without.
std::variant<FormValue, ValueFault> readFormValue(std::wstring_view text);

/// A string at the beginning of text, which is shortened by it: doubled quotes stand for one.
std::variant<std::wstring, ValueFault> takeQuoted(std::wstring_view& text);

} // namespace quillet::gallery

// Numbers as text.
#pragma once

#include <string>

namespace quillet {

/// In decimal digits, with a sign where it is negative.
std::wstring decimalText(long number);

} // namespace quillet

// Text as it leaves the program.
#pragma once

#include <string>
#include <string_view>

namespace quillet::gallery {

std::string utf8(std::wstring_view text);

} // namespace quillet::gallery

// The access key that a caption names with an ampersand.
#pragma once

#include <string_view>

namespace quillet::gallery {

/// Whether the caption underlines that character, in either case. Doubled ampersands name none.
bool isMnemonic(std::wstring_view caption, wchar_t character) noexcept;

} // namespace quillet::gallery

// What the gallery says to whoever started it.
#pragma once

#include <string_view>

namespace quillet::gallery {

enum class Stream { Output, Error };

/// Writes text to the standard stream where there is one (a pipe, a file, Wine's terminal), else to the
/// console of the program that started this one; an error that has neither is shown in a box.
void say(Stream stream, std::wstring_view text);

} // namespace quillet::gallery

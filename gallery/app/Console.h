// What the gallery says to whoever started it.
#pragma once

#include <string>
#include <string_view>

namespace quillet::gallery {

struct FormError;

/// Text as it leaves the program.
std::string utf8(std::wstring_view text);

enum class Stream { Output, Error };

/// Writes text to the standard stream where there is one (a pipe, a file, Wine's terminal), else to the
/// console of the program that started this one; an error that has neither is shown in a box.
void say(Stream stream, std::wstring_view text);
/// Says what of a form could not be read.
void sayWarning(FormError const& warning);

} // namespace quillet::gallery

// The program round a form: opens it, runs it, and says what went wrong.
#pragma once

#include <string>
#include <vector>

namespace quillet::gallery {

enum ExitCode { kDone = 0, kCannotOpen = 2 };

/// Runs the gallery with the words after the program's name, until the form is closed; the exit code.
int runGallery(std::vector<std::wstring> const& words);

} // namespace quillet::gallery

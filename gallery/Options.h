// The command line of the gallery.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace quillet::gallery {

struct Options {
    bool design = false;
    bool announceReady = false;
    std::wstring readyFile; ///< where to announce it; empty for the standard output
    std::wstring form;
};

constexpr wchar_t kUsage[] =
    L"usage: gallery [--design] [--screenshot-ready[=FILE]] FORM\n"
    L"  --design            open the form as a designer shows it\n"
    L"  --screenshot-ready  say \"ready LEFT TOP WIDTH HEIGHT\" when the form is painted,\n"
    L"                      on the standard output or in FILE\n";

/// What the words after the program's name ask for; nothing when they make no sense.
std::optional<Options> parseOptions(std::vector<std::wstring> const& words);

} // namespace quillet::gallery

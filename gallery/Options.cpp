// The command line of the gallery.
#include "gallery/Options.h"

#include <string_view>

namespace quillet::gallery {

namespace {

constexpr std::wstring_view kReady = L"--screenshot-ready";

/// Takes a word that begins with two dashes.
bool takeOption(std::wstring_view word, Options& options)
{
    if (word == L"--design") {
        options.design = true;
        return true;
    }
    if (!word.starts_with(kReady))
        return false;
    word.remove_prefix(kReady.size());
    if (!word.empty() && (!word.starts_with(L'=') || word.size() == 1))
        return false;
    options.announceReady = true;
    options.readyFile = word.empty() ? word : word.substr(1);
    return true;
}

} // namespace

std::optional<Options> parseOptions(std::vector<std::wstring> const& words)
{
    Options options;
    for (std::wstring const& word : words) {
        if (word.starts_with(L"--")) {
            if (!takeOption(word, options))
                return std::nullopt;
        } else if (options.form.empty()) {
            options.form = word;
        } else {
            return std::nullopt;
        }
    }
    return options.form.empty() ? std::nullopt : std::optional(options);
}

} // namespace quillet::gallery

// The command line of the gallery.
#include "gallery/app/Options.h"

#include <windows.h>

#include <cstddef>
#include <string_view>

namespace quillet::gallery {

namespace {

constexpr std::wstring_view kReady = L"--screenshot-ready";
constexpr std::wstring_view kLog = L"--log";
constexpr std::wstring_view kSave = L"--save";

using Words = std::vector<std::wstring>;

bool isOption(std::wstring_view word) noexcept { return word.starts_with(L"--"); }

/// What stands behind the option's name and an equals sign; nothing when that is another option, or nothing
/// stands there.
std::optional<std::wstring_view> assigned(std::wstring_view word, std::wstring_view name)
{
    if (!word.starts_with(name) || word.size() < name.size() + 2 || word[name.size()] != L'=')
        return std::nullopt;
    return word.substr(name.size() + 1);
}

bool takeReady(std::wstring_view word, Options& options)
{
    auto const file = assigned(word, kReady);
    if (!file && word != kReady)
        return false;
    options.announceReady = true;
    options.readyFile = file.value_or(L"");
    return true;
}

/// Somebody who forgets the log's name would lose the form that stands there instead.
bool isForm(std::wstring_view file)
{
    constexpr std::wstring_view kEnding = L".frm";
    constexpr int kLength = static_cast<int>(kEnding.size());
    return file.size() >= kEnding.size() &&
           ::CompareStringOrdinal(file.data() + file.size() - kEnding.size(), kLength, kEnding.data(),
                                  kLength, TRUE) == CSTR_EQUAL;
}

/// The file of an option that needs one; it may be a word of its own: the next one.
bool takeFile(Words const& words, std::size_t& position, std::wstring_view name, std::wstring& taken)
{
    std::wstring_view const word = words[position];
    if (auto const file = assigned(word, name)) {
        taken = *file;
        return true;
    }
    bool const hasNext = position + 1 < words.size();
    if (word != name || !hasNext || words[position + 1].empty() || isOption(words[position + 1]))
        return false;
    taken = words[++position];
    return true;
}

/// Takes the option at the position, which moves on to its last word.
bool takeOption(Words const& words, std::size_t& position, Options& options)
{
    std::wstring_view const word = words[position];
    if (word == L"--design")
        return options.design = true;
    if (word == L"--help")
        return options.help = true;
    return takeReady(word, options) || takeFile(words, position, kSave, options.saveFolder) ||
           (takeFile(words, position, kLog, options.logFile) && !isForm(options.logFile));
}

} // namespace

std::optional<Options> parseOptions(std::vector<std::wstring> const& words)
{
    Options options;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (isOption(words[i])) {
            if (!takeOption(words, i, options))
                return std::nullopt;
        } else if (options.form.empty()) {
            options.form = words[i];
        } else {
            return std::nullopt;
        }
    }
    return options.form.empty() && !options.saveFolder.empty() ? std::nullopt : std::optional(options);
}

} // namespace quillet::gallery

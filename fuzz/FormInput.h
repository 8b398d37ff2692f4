// A form file and its companion, as the fuzzers of forms are given them.
#pragma once

#include "gallery/FormTree.h"
#include "platform/Files.h"

#include <windows.h>

#include <algorithm>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quillet::fuzz {

constexpr wchar_t kFormFolder[] = L"C:\\forms";
constexpr wchar_t kCompanionName[] = L"a.frx";

/// The form's text, then a zero byte, then the companion file.
struct FormInput {
    explicit FormInput(std::span<BYTE const> bytes)
    {
        auto const end = std::ranges::find(bytes, 0);
        // A block of exactly its size, so that reading past the text is seen.
        m_text.assign(bytes.begin(), end);
        if (end != bytes.end())
            companion.assign(end + 1, bytes.end());
    }

    std::string_view text() const noexcept { return {m_text.data(), m_text.size()}; }
    std::string companion;

private:
    std::vector<char> m_text;
};

/// Makes every companion file that the form names one with those bytes, and its own one, too.
inline void setCompanion(gallery::FormNode const& node, File const& file)
{
    for (auto const& property : node.properties)
        if (auto const* const reference = std::get_if<gallery::ResourceReference>(&property.value)) {
            std::wstring const& path = reference->file;
            std::wstring const name = path.substr(path.find_last_of(L"\\/") + 1); // npos + 1 is the beginning
            files()[std::wstring(kFormFolder) + L"\\" + name] = file;
        }
    for (auto const& child : node.children)
        setCompanion(child, file);
}

inline void setCompanion(gallery::FormTree const& tree, std::string const& bytes)
{
    File const file{bytes, static_cast<long long>(bytes.size())};
    files()[std::wstring(kFormFolder) + L"\\" + kCompanionName] = file;
    setCompanion(tree.form, file);
}

} // namespace quillet::fuzz

// A form file and its companion, as the fuzzers of forms are given them.
#pragma once

#include "gallery/form/FormTree.h"
#include "gallery/form/Names.h"
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

/// Makes the form's own companion file, and every other one that the form or a part of it names.
template <class Part> void setCompanions(Part const& part, File const& own, File const& others)
{
    for (auto const& property : part.properties)
        if (auto const* const reference = std::get_if<gallery::ResourceReference>(&property.value)) {
            std::wstring const& path = reference->file;
            std::wstring const name = path.substr(path.find_last_of(L"\\/") + 1); // npos + 1 is the beginning
            files()[std::wstring(kFormFolder) + L"\\" + name] =
                gallery::sameName(name, kCompanionName) ? own : others;
        }
    for (auto const& block : part.blocks)
        setCompanions(block, own, others);
    if constexpr (requires { part.children; })
        for (auto const& child : part.children)
            setCompanions(child, own, others);
}

inline void setCompanions(gallery::FormTree const& tree, std::string const& own, std::string const& others)
{
    auto const fileOf = [](std::string const& bytes) {
        return File{bytes, static_cast<long long>(bytes.size())};
    };
    files()[std::wstring(kFormFolder) + L"\\" + kCompanionName] = fileOf(own);
    setCompanions(tree.form, fileOf(own), fileOf(others));
}

} // namespace quillet::fuzz

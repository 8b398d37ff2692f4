// What the registry holds about classes, to be compared.
#pragma once

#include "shell/RegistryKey.h"

#include <windows.h>

#include <map>
#include <string>
#include <vector>

namespace quillet {

/// Keys and values below Software\Classes, their paths in lower case. A key stands as its path with a
/// backslash behind it and no text; a value as its path, "@" and its name, and its text.
using Snapshot = std::map<std::wstring, std::wstring>;

constexpr wchar_t kClassesKey[] = L"Software\\Classes";

inline std::wstring inLowerCase(std::wstring text)
{
    ::CharLowerBuffW(text.data(), static_cast<DWORD>(text.size()));
    return text;
}

inline std::wstring textOf(DWORD type, std::vector<BYTE> const& data)
{
    if (type != REG_SZ && type != REG_EXPAND_SZ)
        return L"type " + std::to_wstring(type) + L", " + std::to_wstring(data.size()) + L" bytes";
    std::wstring text(reinterpret_cast<wchar_t const*>(data.data()), data.size() / sizeof(wchar_t));
    while (!text.empty() && text.back() == 0)
        text.pop_back();
    return text;
}

inline void addValues(HKEY key, std::wstring const& path, Snapshot& snapshot)
{
    DWORD longest = 0;
    ::RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, &longest,
                       nullptr, nullptr);
    std::vector<BYTE> data(longest + sizeof(wchar_t));
    for (DWORD i = 0;; ++i) {
        wchar_t name[256];
        DWORD nameLength = 256;
        DWORD type = 0;
        DWORD size = static_cast<DWORD>(data.size());
        if (::RegEnumValueW(key, i, name, &nameLength, nullptr, &type, data.data(), &size) != ERROR_SUCCESS)
            return;
        snapshot[path + L"@" + inLowerCase(name)] =
            textOf(type, {data.begin(), data.begin() + static_cast<std::ptrdiff_t>(size)});
    }
}

inline void addKey(HKEY parent, std::wstring const& spelling, std::wstring const& path, Snapshot& snapshot)
{
    HKEY opened = nullptr;
    if (::RegOpenKeyExW(parent, spelling.c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS)
        return;
    UniqueKey const key(opened);
    snapshot[path + L"\\"] = L"";
    addValues(opened, path, snapshot);
    for (DWORD i = 0;; ++i) {
        wchar_t child[256];
        DWORD length = 256;
        if (::RegEnumKeyExW(opened, i, child, &length, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS)
            return;
        std::wstring const name = inLowerCase(child);
        addKey(opened, child, path.empty() ? name : path + L"\\" + name, snapshot);
    }
}

/// Everything. That takes a while.
inline Snapshot allClasses(HKEY root)
{
    Snapshot snapshot;
    addKey(root, kClassesKey, L"", snapshot);
    return snapshot;
}

/// The given keys and all below them.
inline Snapshot classesBelow(HKEY root, std::vector<std::wstring> const& keys)
{
    Snapshot snapshot;
    for (std::wstring const& key : keys)
        addKey(root, std::wstring(kClassesKey) + L"\\" + key, inLowerCase(key), snapshot);
    return snapshot;
}

/// A line for each key and value that is missing, is too much or has another text; none when the two are
/// equal.
inline std::vector<std::wstring> differences(Snapshot const& expected, Snapshot const& actual)
{
    std::vector<std::wstring> lines;
    for (auto const& [key, text] : expected) {
        auto const found = actual.find(key);
        if (found == actual.end())
            lines.push_back(L"missing: " + key);
        else if (found->second != text)
            lines.push_back(key + L" is " + found->second + L" instead of " + text);
    }
    for (auto const& [key, text] : actual)
        if (!expected.contains(key))
            lines.push_back(L"too much: " + key + L" " + text);
    return lines;
}

} // namespace quillet

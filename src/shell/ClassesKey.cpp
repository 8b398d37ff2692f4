// The registry's key of all classes, for the machine or for the user.
#include "shell/ClassesKey.h"

namespace quillet {

namespace {

constexpr wchar_t kClassesKey[] = L"Software\\Classes";

HKEY rootOf(Scope scope) noexcept { return scope == Scope::User ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE; }

} // namespace

UniqueKey classesForWriting(Scope scope)
{
    HKEY key = nullptr;
    checkStatus(::RegCreateKeyExW(rootOf(scope), kClassesKey, 0, nullptr, REG_OPTION_NON_VOLATILE,
                                  KEY_READ | KEY_WRITE, nullptr, &key, nullptr));
    return UniqueKey(key);
}

std::wstring classesValue(Scope scope, std::wstring const& key, REGSAM view)
{
    HKEY opened = nullptr;
    std::wstring const path = std::wstring(kClassesKey) + L'\\' + key;
    if (::RegOpenKeyExW(rootOf(scope), path.c_str(), 0, KEY_READ | view, &opened) != ERROR_SUCCESS)
        return {};
    UniqueKey const owned(opened);
    wchar_t text[MAX_PATH] = {};
    DWORD size = sizeof text;
    if (::RegGetValueW(opened, nullptr, nullptr, RRF_RT_REG_SZ, nullptr, text, &size) != ERROR_SUCCESS)
        return {};
    return text;
}

bool samePath(std::wstring const& path, std::wstring const& other) noexcept
{
    return ::CompareStringOrdinal(path.c_str(), -1, other.c_str(), -1, TRUE) == CSTR_EQUAL;
}

} // namespace quillet

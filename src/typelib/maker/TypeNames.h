// What the types that the lists of members name are called in the type library.
#pragma once

#include "base/ComPtr.h"

#include <oaidl.h>
#include <windows.h>

#include <map>
#include <string>
#include <string_view>

namespace quillet {

/// A type as a list names it: one of automation's own, or a described one.
struct NamedType {
    VARTYPE automation = VT_EMPTY; ///< VT_USERDEFINED for a described one
    ComPtr<ITypeInfo> description; ///< of a described type
    bool isObject = false;         ///< objects are handled by pointer
};

/// Knows every type that a member may have: automation's own, the standard library's, and those added.
class TypeNames {
public:
    /// Opens the standard OLE type library, which has the imported types.
    TypeNames();

    void add(std::wstring name, ComPtr<ITypeInfo> description);
    /// Throws for a name that nobody knows.
    NamedType find(std::wstring_view name) const;
    /// A type of the standard OLE type library.
    ComPtr<ITypeInfo> imported(wchar_t const* name) const;

private:
    ComPtr<ITypeLib> m_standard;
    std::map<std::wstring, ComPtr<ITypeInfo>, std::less<>> m_own;
};

} // namespace quillet

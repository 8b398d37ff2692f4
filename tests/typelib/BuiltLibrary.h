// The built type library, loaded as a component loads its own, and the text that describes what it must be.
#pragma once

#include "Borrowed.h"

#include <windows.h>

#include <oleauto.h>

#include <sstream>
#include <string>
#include <vector>

namespace quillet {

inline ComPtr<ITypeLib> builtLibrary()
{
    wchar_t program[MAX_PATH];
    ::GetModuleFileNameW(nullptr, program, MAX_PATH);
    ComPtr<ITypeLib> library;
    check(::LoadTypeLibEx(program, REGKIND_NONE, library.put()));
    return library;
}

/// What it says of the vtable of a dual interface.
inline ComPtr<ITypeInfo> builtVtable(IID const& interfaceId)
{
    ComPtr<ITypeInfo> dispatch;
    check(builtLibrary()->GetTypeInfoOfGuid(interfaceId, dispatch.put()));
    return vtableView(*dispatch.get());
}

/// The lines of library.txt, which is written by hand.
inline std::vector<std::string> referenceLines()
{
    HRSRC const found = ::FindResourceW(nullptr, L"REFERENCE", MAKEINTRESOURCEW(10)); // RT_RCDATA
    auto const* const text = static_cast<char const*>(::LockResource(::LoadResource(nullptr, found)));
    std::istringstream source(std::string(text, ::SizeofResource(nullptr, found)));
    std::vector<std::string> lines;
    for (std::string line; std::getline(source, line);)
        lines.push_back(line);
    return lines;
}

} // namespace quillet

// The built type library, loaded as a component loads its own, and the text that describes what it must be.
#include "BuiltLibrary.h"

#include "base/RunTimeError.h"

#include <oleauto.h>

#include <iterator>
#include <sstream>

namespace quillet {

ComPtr<ITypeLib> builtLibrary()
{
    wchar_t program[MAX_PATH];
    ::GetModuleFileNameW(nullptr, program, static_cast<DWORD>(std::size(program)));
    ComPtr<ITypeLib> library;
    check(::LoadTypeLibEx(program, REGKIND_NONE, library.put()));
    return library;
}

std::vector<std::string> referenceLines()
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

// Late-bound calls, as a script makes them.
#pragma once

#include "base/Variant.h"

#include <oaidl.h>
#include <windows.h>

#include <string>
#include <vector>

namespace quillet::kit {

/// What a late-bound call came to.
struct Called {
    HRESULT result = S_OK; ///< of GetIDsOfNames or Invoke
    HRESULT code = S_OK;   ///< the exception's own error, where result is DISP_E_EXCEPTION
    std::wstring source;
    std::wstring description;
    std::wstring helpFile;
    DWORD helpContext = 0;
    Variant value;

    HRESULT error() const noexcept { return result == DISP_E_EXCEPTION ? code : result; }
};

/// The member's identifier; DISPID_UNKNOWN when there is none of that name.
DISPID idOf(IDispatch& object, wchar_t const* name);

Called invoke(IDispatch& object, DISPID id, WORD kind, std::vector<Variant> const& arguments = {});
Called getByName(IDispatch& object, wchar_t const* name);
Called putByName(IDispatch& object, wchar_t const* name, Variant const& value);
Called setByName(IDispatch& object, wchar_t const* name, IUnknown* value); ///< assigns an object by reference
Called callByName(IDispatch& object, wchar_t const* name, std::vector<Variant> const& arguments = {});

/// A value as text: numbers, colours as signed ones, strings; fonts and pictures by what can be told of them.
std::string textOf(Variant const& value);
std::string textByName(IDispatch& object, wchar_t const* name);
/// The properties of these names as "Name = value".
std::vector<std::string> textsByName(IDispatch& object, std::vector<std::wstring> const& names);

} // namespace quillet::kit

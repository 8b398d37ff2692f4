// How the class factory makes an object of any class.
#pragma once

#include <windows.h>

#include <unknwn.h>

namespace quillet {

/// Makes an object, as part of an outer one where there is one, and hands out one of its interfaces.
using CreateFunction = HRESULT (*)(IUnknown* outer, REFIID iid, void** object) noexcept;

} // namespace quillet

// Members of a form's objects, read and written by name as a form's code does.
#pragma once

#include "base/LateBound.h"

#include <utility>

namespace quillet::gallery::test {

inline Variant getByName(IDispatch& object, wchar_t const* name) { return propertyByName(&object, name); }
inline void putByName(IDispatch& object, wchar_t const* name, Variant value)
{
    putPropertyByName(&object, name, std::move(value));
}

} // namespace quillet::gallery::test

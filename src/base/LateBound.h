// Members of somebody else's object, reached by name at run time.
#pragma once

#include "base/ComPtr.h"
#include "base/Variant.h"

#include <oaidl.h>
#include <windows.h>

namespace quillet {

/// Reads a property by name. Throws the object's error; ObjectNotSet for no object.
Variant propertyByName(IDispatch* object, wchar_t const* name);

/// Reads a property by identifier. Throws as above.
Variant propertyById(IDispatch* object, DISPID id);

/// Assigns a property by name. Throws as above.
void putPropertyByName(IDispatch* object, wchar_t const* name, Variant value);

/// Reads one item of a collection. Throws as above.
Variant itemByIndex(IDispatch* collection, long index);

} // namespace quillet

// Fills one type description of the library in.
#pragma once

#include "base/ComPtr.h"
#include "typelib/maker/Descriptions.h"
#include "typelib/maker/TypeNames.h"

#include <oaidl.h>
#include <windows.h>

namespace quillet {

/// Writes what row says into a new, empty description. Everything that it refers to must be among the names.
/// Throws when the system refuses something.
void writeDescription(ComPtr<ICreateTypeInfo> type, Description const& row, TypeNames const& names);

/// The interfaces take their strings without const, and change none.
inline wchar_t* mutableText(wchar_t const* text) { return const_cast<wchar_t*>(text); }

} // namespace quillet

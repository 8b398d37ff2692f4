// Turns the colours of properties and of the desktop scheme into what GDI draws with.
#pragma once

#include <ocidl.h>
#include <windows.h>

namespace quillet {

/// The colour as 0x00BBGGRR, a system colour as it is at this moment. One that cannot be translated (a system
/// colour that does not exist) comes back as it is stored.
COLORREF resolvedColour(OLE_COLOR colour) noexcept;

/// The same, with what to answer for a colour that cannot be translated.
COLORREF resolvedColour(OLE_COLOR colour, COLORREF untranslated) noexcept;

} // namespace quillet

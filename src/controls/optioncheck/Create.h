// Makes flat option buttons and check boxes for the class factory.
#pragma once

#include <windows.h>

#include <unknwn.h>

namespace quillet {

struct ControlClass;

/// The classes as the surface and the registration know them.
ControlClass const& flatOptionClass() noexcept;
ControlClass const& flatCheckClass() noexcept;

/// A new control, aggregated when there is an outer object.
HRESULT createFlatOption(IUnknown* outer, REFIID iid, void** object) noexcept;
HRESULT createFlatCheck(IUnknown* outer, REFIID iid, void** object) noexcept;

} // namespace quillet

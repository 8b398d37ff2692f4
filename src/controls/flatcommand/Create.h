// Makes flat command buttons for the class factory.
#pragma once

#include <windows.h>

#include <unknwn.h>

namespace quillet {

struct ControlClass;

/// The class as the surface and the registration know it.
ControlClass const& flatCommandClass() noexcept;

/// A new button, aggregated when there is an outer object.
HRESULT createFlatCommand(IUnknown* outer, REFIID iid, void** object) noexcept;

} // namespace quillet

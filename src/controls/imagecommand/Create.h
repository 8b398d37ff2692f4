// Makes image command buttons and tool buttons for the class factory.
#pragma once

#include <windows.h>

#include <unknwn.h>

namespace quillet {

struct ControlClass;

/// The classes as the surface and the registration know them.
ControlClass const& imageCommandClass() noexcept;
ControlClass const& flatToolButtonClass() noexcept;

/// A new button, aggregated when there is an outer object.
HRESULT createImageCommand(IUnknown* outer, REFIID iid, void** object) noexcept;
HRESULT createFlatToolButton(IUnknown* outer, REFIID iid, void** object) noexcept;

} // namespace quillet

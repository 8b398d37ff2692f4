// The ambient properties: what the form tells all its ActiveX controls.
#pragma once

#include "gallery/host/FormControl.h"
#include "gallery/host/LateBoundObject.h"

#include <span>
#include <string_view>

namespace quillet::gallery {

/// The rows of the ambients, which a site answers by identifier or by name.
std::span<Member<FormControl> const> ambientRows() noexcept;
/// DISPID_UNKNOWN when there is no ambient of that name.
DISPID ambientId(std::wstring_view name) noexcept;

} // namespace quillet::gallery

// Turns the lines of a form that belong to a control into the property bag that the control loads.
#pragma once

#include "base/ComPtr.h"
#include "gallery/FormTree.h"
#include "gallery/PropertyBag.h"

#include <string_view>

namespace quillet::gallery {

/// Whether a line of that name is the extender's, so that the control never sees it.
bool isExtenderProperty(std::wstring_view name) noexcept;

/// The bag of one control: its own properties only, fonts as standard font objects. What a stage without
/// the companion file cannot give, such as a picture, is left out: the control takes its default.
ComPtr<PropertyBag> controlBag(FormNode const& node);

} // namespace quillet::gallery

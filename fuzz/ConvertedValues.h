// What a loaded value goes through on its way into a property, for every kind of property.
#pragma once

#include "base/Variant.h"
#include "saving/PropertyBag.h"
#include "surface/PropertyKinds.h"

namespace quillet::fuzz {

constexpr PropertyKind kAllKinds[] = {
    PropertyKind::Colour, PropertyKind::Flag,    PropertyKind::FlagAsInteger, PropertyKind::Integer,
    PropertyKind::Number, PropertyKind::Style,   PropertyKind::State,         PropertyKind::Text,
    PropertyKind::Font,   PropertyKind::Picture,
};

/// The saved value, or the default of a property, in the type in which it would be saved.
Variant loadedOr(PropertyBag& bag, wchar_t const* name, Variant const& fallback);

/// Converts a loaded value and saves it again. A refusal is a RunTimeError; what is not refused has the type
/// of its kind and is the same when it has been saved and loaded.
void holdConversion(PropertyKind kind, Variant const& loaded);

} // namespace quillet::fuzz

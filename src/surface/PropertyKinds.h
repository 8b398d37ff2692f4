// What properties are: the types in which each kind is kept and saved, and the way into them.
#pragma once

#include "base/Variant.h"

#include <windows.h>

namespace quillet {

/// What a property is: the type in which its control keeps it, and the type in which it is saved.
enum class PropertyKind {
    Colour,        ///< 32 bits
    Flag,          ///< 16-bit boolean
    FlagAsInteger, ///< a flag that is saved as a 16-bit integer
    Integer,       ///< 16 bits
    Number,        ///< 32 bits
    Style,         ///< kept in 32 bits, saved in 16 where it fits
    State,         ///< of a check box: 16 bits, and only 0, 1 and 2
    Text,
    Font,    ///< the object that was given
    OwnFont, ///< a copy of it
    Picture,
};

constexpr bool isFont(PropertyKind kind) noexcept
{
    return kind == PropertyKind::Font || kind == PropertyKind::OwnFont;
}
VARTYPE keptType(PropertyKind kind) noexcept;
VARTYPE savedType(PropertyKind kind) noexcept;

/// A value in the type in which a kind is kept. Type mismatch or Overflow where it does not convert, or is an
/// object of another kind.
Variant convertedProperty(PropertyKind kind, Variant const& value);
/// The same for what a setter is given: a font, too, has to be one that a form can be loaded with, else it is
/// an invalid property value.
Variant assignedProperty(PropertyKind kind, Variant const& value);
/// Type mismatch for a font or picture that lacks what properties of that kind need of it.
void requireKind(PropertyKind kind, IUnknown* object);
/// A kept value in the type in which the kind is saved.
Variant savedProperty(PropertyKind kind, Variant kept);
/// The default of a kind that has one value for all controls.
Variant plainFallback(PropertyKind kind, long fallback);

} // namespace quillet

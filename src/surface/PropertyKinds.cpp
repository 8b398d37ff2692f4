// What properties are: the types of each kind.
#include "surface/PropertyKinds.h"

#include "base/RunTimeError.h"
#include "saving/StandardFont.h"

#include <iterator>

namespace quillet {

namespace {

struct KindRow {
    PropertyKind kind;
    VARTYPE kept;
    VARTYPE saved;
};

constexpr KindRow kKinds[] = {
    {PropertyKind::Colour, VT_I4, VT_I4},
    {PropertyKind::Flag, VT_BOOL, VT_BOOL},
    {PropertyKind::FlagAsInteger, VT_BOOL, VT_I2},
    {PropertyKind::Integer, VT_I2, VT_I2},
    {PropertyKind::Number, VT_I4, VT_I4},
    {PropertyKind::Style, VT_I4, VT_I2},
    {PropertyKind::State, VT_I2, VT_I2},
    {PropertyKind::Text, VT_BSTR, VT_BSTR},
    {PropertyKind::Font, VT_UNKNOWN, VT_UNKNOWN},
    {PropertyKind::OwnFont, VT_UNKNOWN, VT_UNKNOWN},
    {PropertyKind::Picture, VT_UNKNOWN, VT_UNKNOWN},
};

constexpr bool isInOrder() noexcept
{
    for (size_t i = 0; i < std::size(kKinds); ++i)
        if (static_cast<size_t>(kKinds[i].kind) != i)
            return false;
    return true;
}
static_assert(isInOrder(), "a kind's row stands where its number says");

KindRow const& rowOf(PropertyKind kind) noexcept { return kKinds[static_cast<size_t>(kind)]; }

/// A font or picture as its property keeps it; everything that can go wrong with the object goes wrong here.
/// A font that is not there is an error; a picture may be missing.
Variant convertedObject(PropertyKind kind, IUnknown* object)
{
    if (!object && isFont(kind))
        throw RunTimeError(ErrorNumber::ObjectNotSet);
    if (!object)
        return Variant::ofUnknown(nullptr);
    requireKind(kind, object);
    if (kind != PropertyKind::OwnFont)
        return Variant::ofUnknown(object);
    auto const own = copyOfFont(object);
    if (!own)
        throw RunTimeError(ErrorNumber::TypeMismatch);
    return Variant::ofUnknown(own.get());
}

/// A colour with the top bit set may come as a negative number, as an unsigned one, or as text of either.
Variant convertedColour(Variant const& value)
{
    try {
        return value.convertedTo(VT_I4);
    } catch (RunTimeError const&) {
        return Variant::ofLong(static_cast<long>(value.convertedTo(VT_UI4).get().ulVal));
    }
}

Variant convertedState(Variant const& value)
{
    short const state = value.toShort();
    if (state < 0 || state > 2)
        throw RunTimeError(ErrorNumber::InvalidPropertyValue);
    return Variant::ofShort(state);
}

} // namespace

VARTYPE keptType(PropertyKind kind) noexcept { return rowOf(kind).kept; }
VARTYPE savedType(PropertyKind kind) noexcept { return rowOf(kind).saved; }

Variant convertedProperty(PropertyKind kind, Variant const& value)
{
    if (kind == PropertyKind::Colour)
        return convertedColour(value);
    if (kind == PropertyKind::State)
        return convertedState(value);
    if (keptType(kind) != VT_UNKNOWN)
        return value.convertedTo(keptType(kind));
    return convertedObject(kind, value.toObject().get());
}

/// Properties hold such objects, hand them out and save them.
void requireKind(PropertyKind kind, IUnknown* object)
{
    bool const fits = isFont(kind) ? query<IFont>(object) && query<IFontDisp>(object)
                                   : query<IPicture>(object) && query<IPictureDisp>(object);
    if (!fits || !query<IPersistStream>(object))
        throw RunTimeError(ErrorNumber::TypeMismatch);
}

Variant assignedProperty(PropertyKind kind, Variant const& value)
{
    Variant converted = convertedProperty(kind, value);
    CY size = {};
    if (isFont(kind) && SUCCEEDED(query<IFont>(converted.toObject().get())->get_Size(&size)) &&
        !isHonestFontSize(size.int64))
        throw RunTimeError(ErrorNumber::InvalidPropertyValue);
    return converted;
}

Variant savedProperty(PropertyKind kind, Variant kept)
{
    bool const fits = kind != PropertyKind::Style || kept.get().lVal == static_cast<short>(kept.get().lVal);
    // What is too large for its saved type is saved as it is, not lost.
    if (!fits || kept.type() == savedType(kind))
        return kept;
    return kept.convertedTo(savedType(kind));
}

Variant plainFallback(PropertyKind kind, long fallback)
{
    switch (keptType(kind)) {
    case VT_BSTR:
        return Variant::ofString({});
    case VT_UNKNOWN:
        return Variant::ofUnknown(nullptr);
    case VT_BOOL:
        return Variant::ofBool(fallback != 0);
    default:
        return Variant::ofLong(fallback).convertedTo(keptType(kind));
    }
}

} // namespace quillet

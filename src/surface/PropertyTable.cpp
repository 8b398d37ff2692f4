// A control's properties as rows: what is done with one of them, and with all.
#include "surface/PropertyTable.h"

#include "base/Compiler.h"
#include "base/RunTimeError.h"
#include "saving/StandardFont.h"
#include "saving/StandardPicture.h"

#include <cstring>
#include <vector>

namespace quillet {

namespace {

template <class Field> Field& fieldOf(Surface const& control, PropertyAccess const& access)
{
    return *static_cast<Field*>(access.field(const_cast<Surface&>(control)));
}

Variant valueOf(Surface const& control, PropertyAccess const& access)
{
    if (!access.field)
        return access.get(control);
    switch (access.type) {
    case FieldType::Bool:
        return fieldValue(fieldOf<bool>(control, access));
    case FieldType::Short:
        return fieldValue(fieldOf<short>(control, access));
    case FieldType::Long:
        return fieldValue(fieldOf<long>(control, access));
    case FieldType::Colour:
        return fieldValue(fieldOf<OLE_COLOR>(control, access));
    case FieldType::Text:
        return fieldValue(fieldOf<Bstr>(control, access));
    case FieldType::Font:
        return fieldValue(fieldOf<ComPtr<IFontDisp>>(control, access).get());
    case FieldType::Picture:
        return fieldValue(fieldOf<ComPtr<IPictureDisp>>(control, access).get());
    }
    unreachable();
}

void store(Surface& control, PropertyAccess const& access, Variant const& value)
{
    if (!access.field)
        return access.set(control, value);
    switch (access.type) {
    case FieldType::Bool:
        fieldOf<bool>(control, access) = value.toBool();
        return;
    case FieldType::Short:
        fieldOf<short>(control, access) = value.toShort();
        return;
    case FieldType::Long:
        fieldOf<long>(control, access) = value.toLong();
        return;
    case FieldType::Colour:
        fieldOf<OLE_COLOR>(control, access) = colourOf(value);
        return;
    case FieldType::Text:
        fieldOf<Bstr>(control, access) = value.toString();
        return;
    case FieldType::Font:
        fieldOf<ComPtr<IFontDisp>>(control, access) = query<IFontDisp>(value.toObject().get());
        return;
    case FieldType::Picture:
        fieldOf<ComPtr<IPictureDisp>>(control, access) = query<IPictureDisp>(value.toObject().get());
        return;
    }
}

/// A number of its property's own type is stored as it comes, without a variant. False where there is no
/// field that takes numbers.
bool storeNumber(Surface& control, PropertyAccess const& access, long number)
{
    if (!access.field)
        return false;
    switch (access.type) {
    case FieldType::Bool:
        fieldOf<bool>(control, access) = number != VARIANT_FALSE;
        return true;
    case FieldType::Short:
        fieldOf<short>(control, access) = static_cast<short>(number);
        return true;
    case FieldType::Long:
        fieldOf<long>(control, access) = number;
        return true;
    case FieldType::Colour:
        fieldOf<OLE_COLOR>(control, access) = static_cast<OLE_COLOR>(number);
        return true;
    case FieldType::Text:
    case FieldType::Font:
    case FieldType::Picture:
        return false;
    }
    return false;
}

/// Arguments come by their addresses, with their automation types for their C++ types.
template <class Argument> Argument taken(void const* value) noexcept
{
    Argument argument;
    std::memcpy(&argument, value, sizeof(Argument));
    return argument;
}
template <class Argument> void give(void* out, Argument value) noexcept
{
    std::memcpy(out, &value, sizeof(Argument));
}

/// A member's argument as a variant.
Variant argumentValue(PropertyKind kind, VARTYPE type, void const* value)
{
    switch (type) {
    case VT_BSTR:
        return Variant::ofString(Bstr::viewOf(*static_cast<BSTR const*>(value)));
    case VT_VARIANT:
        return Variant::copyOf(*static_cast<VARIANT const*>(value));
    case VT_UNKNOWN:
        return Variant::ofUnknown(taken<IUnknown*>(value));
    case VT_I2: {
        auto const number = taken<short>(value);
        return keptType(kind) == VT_BOOL ? Variant::ofBool(number != VARIANT_FALSE)
                                         : Variant::ofShort(number);
    }
    default:
        return Variant::ofLong(taken<long>(value));
    }
}

/// A property's value into a caller's out-parameter.
void answerValue(PropertyKind kind, Variant value, VARTYPE type, void* out)
{
    switch (type) {
    case VT_BSTR:
        *static_cast<BSTR*>(out) = value.toString().copy();
        return;
    case VT_VARIANT:
        *static_cast<VARIANT*>(out) = value.detach();
        return;
    case VT_UNKNOWN: {
        auto const object = value.toObject();
        if (isFont(kind))
            give(out, query<IFontDisp>(object.get()).detach());
        else
            give(out, query<IPictureDisp>(object.get()).detach());
        return;
    }
    case VT_I2:
        give(out, value.get().iVal); // VT_BOOL shares it
        return;
    default:
        give(out, value.get().lVal);
        return;
    }
}

Variant fallbackOf(Surface const& control, PropertyRow const& row)
{
    if (isFont(row.kind)) // the container's, already a copy
        return Variant::ofUnknown(control.container().ambientFont().get());
    if (row.kind == PropertyKind::Text)
        return Variant::ofString(row.fallbackText);
    return plainFallback(row.kind, row.fallback);
}

void storeFallback(Surface& control, PropertyRow const& row)
{
    if (!storeNumber(control, row.access, row.fallback))
        store(control, row.access, fallbackOf(control, row));
}

void setDefaultsOf(Surface& control, std::span<PropertyRow const> rows)
{
    for (PropertyRow const& row : rows)
        if (row.atStart == AtStart::Default)
            storeFallback(control, row);
}

/// Whether a font is the container's.
bool isAmbientFont(Surface const& control, IUnknown* object)
{
    auto const font = query<IFont>(object);
    auto const shared = control.container().sharedFont();
    if (font && shared && font->IsEqual(shared.get()) == S_OK)
        return true;
    return equalFonts(font.get(), control.container().ambientFont().get());
}

/// Whether a value that is kept by functions is its row's default.
bool isDefaultValue(Surface const& control, PropertyRow const& row, Variant const& value)
{
    switch (keptType(row.kind)) {
    case VT_BOOL:
        return (value.get().boolVal != VARIANT_FALSE) == (row.fallback != 0);
    case VT_I2:
        return value.get().iVal == row.fallback;
    case VT_I4:
        return value.get().lVal == row.fallback;
    case VT_BSTR:
        return Bstr::viewOf(value.get().bstrVal) == row.fallbackText;
    default: // an empty picture stands for none
        return isFont(row.kind) ? isAmbientFont(control, value.get().punkVal)
                                : isEmptyPicture(value.get().punkVal);
    }
}

/// Whether a property is at its default, seen where it stands as far as it can be.
bool isDefault(Surface const& control, PropertyRow const& row)
{
    if (!row.access.field)
        return isDefaultValue(control, row, row.access.get(control));
    switch (row.access.type) {
    case FieldType::Bool:
        return fieldOf<bool>(control, row.access) == (row.fallback != 0);
    case FieldType::Short:
        return fieldOf<short>(control, row.access) == row.fallback;
    case FieldType::Long:
        return fieldOf<long>(control, row.access) == row.fallback;
    case FieldType::Colour:
        return fieldOf<OLE_COLOR>(control, row.access) == static_cast<OLE_COLOR>(row.fallback);
    case FieldType::Text:
        return fieldOf<Bstr>(control, row.access).view() == row.fallbackText;
    case FieldType::Font:
        return isAmbientFont(control, fieldOf<ComPtr<IFontDisp>>(control, row.access).get());
    case FieldType::Picture:
        return isEmptyPicture(fieldOf<ComPtr<IPictureDisp>>(control, row.access).get());
    }
    unreachable();
}

/// What a bag has for a row; empty where it is the default, but for objects: those come as they are stored.
Variant loadedValue(Surface const& control, PropertyRow const& row, PropertyBag& bag)
{
    Variant const saved = bag.readProperty(row.name, savedType(row.kind));
    if (saved.type() != VT_EMPTY)
        return convertedProperty(row.kind, saved);
    if (keptType(row.kind) != VT_UNKNOWN)
        return {};
    Variant fallback = fallbackOf(control, row);
    if (isFont(row.kind))
        requireKind(row.kind, fallback.get().punkVal);
    return fallback;
}

/// What every setter ends with.
void changed(Surface& control, PropertyRow const& row)
{
    control.propertyChanged(row.id, row.repaint == Repaint::No ? ViewChange::No : ViewChange::Yes);
    if (row.repaint == Repaint::AfterMeasuring)
        control.onMeasure();
    if (row.repaint == Repaint::Yes || row.repaint == Repaint::AfterMeasuring)
        control.repaint();
}

} // namespace

PropertyRow const& PropertyTable::rowOf(DISPID id) const
{
    std::uint8_t const place = m_places[placeOf(id)];
    if (place == kNoRow || m_rows[place].id != id)
        throw RunTimeError(DISP_E_MEMBERNOTFOUND);
    return m_rows[place];
}

void PropertyTable::put(Surface& control, Row const& row, Variant const& value) const
{
    assign(control, row, assignedProperty(row.kind, value));
}

HRESULT PropertyTable::getMember(Surface& control, DISPID id, VARTYPE type, void* value) const noexcept
{
    return control.call([&] {
        if (!value)
            throw RunTimeError(E_POINTER);
        if (type == VT_UNKNOWN)
            give<IUnknown*>(value, nullptr);
        Row const& row = rowOf(id);
        if (type == VT_I4 && row.access.field) // a colour, or an enumeration's value
            give(value, fieldOf<long>(control, row.access));
        else
            answerValue(row.kind, valueOf(control, row.access), type, value);
    });
}

QV_NEVER_INLINE void PropertyTable::putArgument(Surface& control, Row const& row, VARTYPE type,
                                                void const* value) const
{
    put(control, row, argumentValue(row.kind, type, value));
}

HRESULT PropertyTable::putMember(Surface& control, DISPID id, VARTYPE type, void const* value) const noexcept
{
    return control.call([&] {
        Row const& row = rowOf(id);
        bool const isStored =
            !row.assign && ((type == VT_I4 && storeNumber(control, row.access, taken<long>(value))) ||
                            (type == VT_I2 && storeNumber(control, row.access, taken<short>(value))));
        if (isStored)
            changed(control, row);
        else
            putArgument(control, row, type, value);
    });
}

void PropertyTable::init(Surface& control) const
{
    for (Row const& row : m_rows)
        if (isFont(row.kind))
            storeObject(control, row, fallbackOf(control, row));
    setDefaultsOf(control, m_rows);
}

void PropertyTable::setPlainDefaults(Surface& control) const
{
    for (Row const& row : m_rows)
        if (row.atStart == AtStart::Default && keptType(row.kind) != VT_UNKNOWN)
            storeFallback(control, row);
}

void PropertyTable::setDefaults(Surface& control, Part part, DISPID border) const
{
    auto const after = static_cast<size_t>(&rowOf(border) - m_rows.data()) + 1;
    setDefaultsOf(control, part == Part::Through ? m_rows.first(after) : m_rows.subspan(after));
}

void PropertyTable::read(Surface& control, PropertyBag& bag) const
{
    std::vector<Variant> values;
    values.reserve(m_rows.size());
    for (Row const& row : m_rows)
        if (row.saved == Saved::Yes)
            values.push_back(loadedValue(control, row, bag));
    auto value = values.cbegin();
    for (Row const& row : m_rows) {
        if (row.saved != Saved::Yes)
            continue;
        Variant const& loaded = *value++;
        if (loaded.type() == VT_EMPTY)
            storeFallback(control, row);
        else if (keptType(row.kind) == VT_UNKNOWN)
            storeObject(control, row, loaded);
        else
            store(control, row.access, loaded);
    }
}

void PropertyTable::write(Surface const& control, PropertyBag& bag) const
{
    bool firstIsWritten = false;
    for (Row const& row : m_rows) {
        // Where a name stands twice the last value counts, so it is written even where it is the default.
        bool const again = isRow(row, m_twice.second) && firstIsWritten;
        if (row.saved == Saved::No || (!again && isDefault(control, row)))
            continue;
        bag.writeProperty(row.name, savedProperty(row.kind, valueOf(control, row.access)));
        firstIsWritten |= isRow(row, m_twice.first);
    }
}

/// What the setter does once its value is converted.
void PropertyTable::assign(Surface& control, Row const& row, Variant const& converted) const
{
    if (!row.assign)
        store(control, row.access, converted);
    else if (!row.assign(control, converted))
        return;
    changed(control, row);
}

void PropertyTable::storeObject(Surface& control, Row const& row, Variant const& value) const
{
    if (m_objects == LoadedObjects::ThroughSetters)
        assign(control, row, value);
    else
        store(control, row.access, value);
}

} // namespace quillet

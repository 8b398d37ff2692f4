// A control's properties as rows: saved name, saved type, default, order and effect of each stand once.
#pragma once

#include "base/Bstr.h"
#include "base/ComPtr.h"
#include "base/Variant.h"
#include "saving/PropertyBag.h"
#include "surface/PropertyKinds.h"
#include "surface/Surface.h"

#include <ocidl.h>
#include <olectl.h>
#include <windows.h>

#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <type_traits>
#include <utility>

namespace quillet {

/// A name may stand in two rows, the second of which is only written.
enum class Saved { No, Yes, OnlyWritten };
/// What gives a new control its value: the default of its row, or whatever the surface starts with.
enum class AtStart { Default, Surface };
/// Whether the setter ends by painting. ByItself: storing the value has painted it already.
enum class Repaint { No, Yes, AfterMeasuring, ByItself };
/// How loading stores fonts and pictures: as their setters do, or like every other value.
enum class LoadedObjects { ThroughSetters, IntoFields };

/// The C++ types of fields that properties are kept in.
enum class FieldType { Bool, Short, Long, Colour, Text, Font, Picture };
template <class Field> constexpr FieldType fieldType() = delete;
template <> constexpr FieldType fieldType<bool>() { return FieldType::Bool; }
template <> constexpr FieldType fieldType<short>() { return FieldType::Short; }
template <> constexpr FieldType fieldType<long>() { return FieldType::Long; }
template <> constexpr FieldType fieldType<OLE_COLOR>() { return FieldType::Colour; }
template <> constexpr FieldType fieldType<Bstr>() { return FieldType::Text; }
template <> constexpr FieldType fieldType<ComPtr<IFontDisp>>() { return FieldType::Font; }
template <> constexpr FieldType fieldType<ComPtr<IPictureDisp>>() { return FieldType::Picture; }

/// How a property is read and stored, in the type of its kind: in a field, or by functions where there is
/// more to it. Storing has no further effect.
struct PropertyAccess {
    Variant (*get)(Surface const&) = nullptr;
    void (*set)(Surface&, Variant const&) = nullptr;
    void* (*field)(Surface&) = nullptr;
    FieldType type = {};
};

/// A property that a control keeps in a field of its looks, whose class names the control.
template <auto Field> inline constexpr PropertyAccess kField = {};
template <class Looks, class Value, Value Looks::*Field>
inline constexpr PropertyAccess kField<Field> = {
    .field = [](Surface& surface) -> void* {
        return &(static_cast<typename Looks::Control&>(surface).looks().*Field);
    },
    .type = fieldType<Value>()};

/// Fields as variants of their properties' kinds.
inline Variant fieldValue(Bstr const& field) { return Variant::ofString(field.view()); }
inline Variant fieldValue(bool field) { return Variant::ofBool(field); }
inline Variant fieldValue(short field) { return Variant::ofShort(field); }
inline Variant fieldValue(long field) { return Variant::ofLong(field); }
inline Variant fieldValue(OLE_COLOR field) { return Variant::ofLong(static_cast<long>(field)); }
inline Variant fieldValue(IUnknown* field) { return Variant::ofUnknown(field); }
inline OLE_COLOR colourOf(Variant const& value) { return static_cast<OLE_COLOR>(value.toLong()); }

/// The properties that the surface itself holds.
struct SurfaceAccess {
    static constexpr PropertyAccess kBackColor = {
        [](Surface const& s) { return fieldValue(s.backColor()); },
        [](Surface& s, Variant const& v) { s.setBackColor(colourOf(v)); }};
    static constexpr PropertyAccess kForeColor = {
        [](Surface const& s) { return fieldValue(s.foreColor()); },
        [](Surface& s, Variant const& v) { s.setForeColor(colourOf(v)); }};
    static constexpr PropertyAccess kEnabled = {
        [](Surface const& s) { return fieldValue(s.enabled()); },
        [](Surface& s, Variant const& v) { s.setEnabled(v.toBool()); }};
    static constexpr PropertyAccess kFont = {
        [](Surface const& s) { return fieldValue(s.font()); },
        [](Surface& s, Variant const& v) { s.setFont(query<IFont>(v.toObject().get())); }};
    static constexpr PropertyAccess kMousePointer = {
        [](Surface const& s) { return fieldValue(s.mousePointer()); },
        [](Surface& s, Variant const& v) { s.setMousePointer(v.toShort()); }};
    static constexpr PropertyAccess kMouseIcon = {
        [](Surface const& s) { return fieldValue(s.mouseIcon()); },
        [](Surface& s, Variant const& v) { s.setMouseIcon(v.toObject().get()); }};
};

struct PropertyRow {
    wchar_t const* name; ///< published and saved
    DISPID id;
    PropertyKind kind;
    long fallback; ///< the default of numbers and flags
    PropertyAccess access;
    Saved saved;
    AtStart atStart;
    Repaint repaint;
    /// The setter's own way of storing, where it does more than that. False for a value that it refused with
    /// a word to the user: the property has not changed then.
    bool (*assign)(Surface&, Variant const&) = nullptr;
    wchar_t const* fallbackText = L""; ///< the default of texts
};

/// Everything that a control does with all of its properties, done by walking its rows.
class PropertyTable {
public:
    using Row = PropertyRow;

    explicit consteval PropertyTable(std::span<Row const> rows,
                                     LoadedObjects objects = LoadedObjects::ThroughSetters)
        : m_rows(rows), m_objects(objects)
    {
        auto const count = static_cast<std::uint8_t>(rows.size());
        for (std::uint8_t i = 0; i < count; ++i) {
            if (rows[i].id != DISPID_UNKNOWN)
                claim(m_places[placeOf(rows[i].id)], i);
            for (std::uint8_t before = 0; before < i; ++before)
                if (std::wstring_view(rows[before].name) == rows[i].name)
                    m_twice = {before, i};
        }
    }

    Row const& rowOf(DISPID id) const;

    /// The setter: stores the value, tells who listens, measures and repaints where the row says so. A value
    /// that does not convert changes nothing.
    void put(Surface& control, Row const& row, Variant const& value) const;

    /// A property's members as a vtable has them, by the automation type of the argument: VT_I2 (also for
    /// VARIANT_BOOL), VT_I4 (also for enumerations and colours), VT_BSTR, VT_VARIANT, or VT_UNKNOWN for fonts
    /// and pictures. The value is borrowed.
    HRESULT getMember(Surface& control, DISPID id, VARTYPE type, void* value) const noexcept;
    HRESULT putMember(Surface& control, DISPID id, VARTYPE type, void const* value) const noexcept;

    /// The values of a new control, fonts first; they are the container's.
    void init(Surface& control) const;

    /// For a control that may never be initialised or loaded: the defaults that need no container.
    void setPlainDefaults(Surface& control) const;

    /// The defaults of the rows up to a property, which is the last of them, or of all rows after it.
    enum class Part { Through, After };
    void setDefaults(Surface& control, Part part, DISPID border) const;

    /// Reads every saved property in order and then stores them: a value that does not convert leaves the
    /// control as it was.
    void read(Surface& control, PropertyBag& bag) const;
    void write(Surface const& control, PropertyBag& bag) const;

private:
    static constexpr std::uint8_t kNoRow = 0xFF;

    /// The place of a row in m_places: seven bits of its identifier, which differ among the rows of a table.
    static constexpr size_t placeOf(DISPID id) noexcept { return (id ^ (id >> 8)) & 0x7F; }
    static constexpr void claim(std::uint8_t& place, std::uint8_t row)
    {
        if (place != kNoRow)
            throw "two rows want one place"; // does not compile: tables are made while compiling
        place = row;
    }
    static constexpr std::array<std::uint8_t, 128> noRows() noexcept
    {
        std::array<std::uint8_t, 128> places{};
        places.fill(kNoRow);
        return places;
    }

    bool isRow(Row const& row, std::uint8_t place) const noexcept { return &row - m_rows.data() == place; }
    void putArgument(Surface& control, Row const& row, VARTYPE type, void const* value) const;
    void assign(Surface& control, Row const& row, Variant const& converted) const;
    void storeObject(Surface& control, Row const& row, Variant const& value) const;

    std::span<Row const> m_rows;
    std::array<std::uint8_t, 128> m_places = noRows();
    /// The two rows of a name that stands twice.
    struct {
        std::uint8_t first = kNoRow;
        std::uint8_t second = kNoRow;
    } m_twice;
    LoadedObjects m_objects;
};

/// The automation type of a member's argument, as getMember and putMember are told it.
template <class Argument> constexpr VARTYPE argumentType() noexcept
{
    if constexpr (std::is_same_v<Argument, BSTR>)
        return VT_BSTR;
    else if constexpr (std::is_same_v<Argument, VARIANT>)
        return VT_VARIANT;
    else if constexpr (std::is_pointer_v<Argument>)
        return VT_UNKNOWN;
    else
        return sizeof(Argument) == sizeof(short) ? VT_I2 : VT_I4;
}

} // namespace quillet

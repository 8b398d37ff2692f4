// A control's properties as rows: saved name, saved type, default, order and effect of each stand once.
#pragma once

#include "base/RunTimeError.h"
#include "base/Variant.h"
#include "saving/PropertyBag.h"
#include "surface/Surface.h"

#include <ocidl.h>
#include <olectl.h>
#include <windows.h>

#include <algorithm>
#include <span>
#include <string_view>
#include <type_traits>
#include <vector>

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
/// A kept value in the type in which the kind is saved.
Variant savedProperty(PropertyKind kind, Variant const& kept);
/// The default of a kind that has one value for all controls.
Variant plainFallback(PropertyKind kind, long fallback);

/// A name may stand twice, and be only written the second time.
enum class Saved { No, Yes, OnlyWritten };
/// What gives a new control its value: the default of its row, or whatever the surface starts with.
enum class AtStart { Default, Surface };
/// Whether the setter ends by painting; what paints itself at once still changes the look.
enum class Repaint { No, Yes, AfterMeasuring, ByItself };
/// How loading stores fonts and pictures: as their setters do, or like every other value.
enum class LoadedObjects { ThroughSetters, IntoFields };

/// How a property is read and stored, in the type of its kind. Storing has no further effect.
template <class Control> struct PropertyAccess {
    Variant (*get)(Control const&);
    void (*set)(Control&, Variant const&);
};

template <class Control> struct PropertyRow {
    wchar_t const* name; ///< published and saved
    DISPID id;
    PropertyKind kind;
    long fallback; ///< the default of numbers and flags
    PropertyAccess<Control> access;
    Saved saved;
    AtStart atStart;
    Repaint repaint;
    /// The setter's own way of storing, where it does more than that. False for a value that it refused with
    /// a word to the user: the property has not changed then.
    bool (*assign)(Control&, Variant const&) = nullptr;
    wchar_t const* fallbackText = L""; ///< the default of texts
};

/// A field's value as a variant of its property's kind, and back.
inline Variant fieldValue(Bstr const& field) { return Variant::ofString(field.view()); }
inline Variant fieldValue(bool field) { return Variant::ofBool(field); }
inline Variant fieldValue(short field) { return Variant::ofShort(field); }
inline Variant fieldValue(long field) { return Variant::ofLong(field); }
inline Variant fieldValue(OLE_COLOR field) { return Variant::ofLong(static_cast<long>(field)); }
template <class Object> Variant fieldValue(ComPtr<Object> const& field)
{
    return Variant::ofUnknown(field.get());
}
inline void storeField(Bstr& field, Variant const& value) { field = value.toString(); }
inline void storeField(bool& field, Variant const& value) { field = value.toBool(); }
inline void storeField(short& field, Variant const& value) { field = value.toShort(); }
inline void storeField(long& field, Variant const& value) { field = value.toLong(); }
inline void storeField(OLE_COLOR& field, Variant const& value)
{
    field = static_cast<OLE_COLOR>(value.toLong());
}

template <class Object> void storeField(ComPtr<Object>& field, Variant const& value)
{
    field = query<Object>(value.toObject().get());
}

/// The properties that the surface itself holds.
template <class Control> struct SurfaceAccess {
    static constexpr PropertyAccess<Control> kBackColor = {
        [](Control const& c) { return fieldValue(c.backColor()); },
        [](Control& c, Variant const& v) { c.setBackColor(static_cast<OLE_COLOR>(v.toLong())); }};
    static constexpr PropertyAccess<Control> kForeColor = {
        [](Control const& c) { return fieldValue(c.foreColor()); },
        [](Control& c, Variant const& v) { c.setForeColor(static_cast<OLE_COLOR>(v.toLong())); }};
    static constexpr PropertyAccess<Control> kEnabled = {
        [](Control const& c) { return fieldValue(c.enabled()); },
        [](Control& c, Variant const& v) { c.setEnabled(v.toBool()); }};
    static constexpr PropertyAccess<Control> kFont = {
        [](Control const& c) { return Variant::ofUnknown(c.font()); },
        [](Control& c, Variant const& v) { c.setFont(query<IFont>(v.toObject().get())); }};
    static constexpr PropertyAccess<Control> kMousePointer = {
        [](Control const& c) { return fieldValue(c.mousePointer()); },
        [](Control& c, Variant const& v) { c.setMousePointer(v.toShort()); }};
    static constexpr PropertyAccess<Control> kMouseIcon = {
        [](Control const& c) { return Variant::ofUnknown(c.mouseIcon()); },
        [](Control& c, Variant const& v) { c.setMouseIcon(v.toObject().get()); }};
};

/// Everything that a control does with all of its properties, done by walking its rows.
template <class Control> class PropertyTable {
public:
    using Row = PropertyRow<Control>;

    explicit constexpr PropertyTable(std::span<Row const> rows,
                                     LoadedObjects objects = LoadedObjects::ThroughSetters) noexcept
        : m_rows(rows), m_objects(objects)
    {}

    Row const& rowOf(DISPID id) const
    {
        for (Row const& row : m_rows)
            if (row.id == id)
                return row;
        throw RunTimeError(DISP_E_MEMBERNOTFOUND);
    }

    /// The setter: stores the value, tells who listens, measures and repaints where the row says so. A value
    /// that does not convert changes nothing.
    void put(Control& control, Row const& row, Variant const& value) const
    {
        assign(control, row, assignedProperty(row.kind, value));
    }

    /// The values of a new control, fonts first; they are the container's.
    void init(Control& control) const
    {
        for (Row const& row : m_rows)
            if (isFont(row.kind))
                storeObject(control, row, fallbackOf(control, row));
        setDefaults(control, m_rows);
    }

    /// What a control has that nobody has initialised: the defaults that no container has a part in.
    void setPlainDefaults(Control& control) const
    {
        for (Row const& row : m_rows)
            if (row.atStart == AtStart::Default && keptType(row.kind) != VT_UNKNOWN)
                row.access.set(control, plainFallback(row.kind, row.fallback));
    }

    /// The defaults of the rows up to a property, which is the last of them, or of all rows after it.
    enum class Part { Through, After };
    void setDefaults(Control& control, Part part, DISPID border) const
    {
        auto const after = static_cast<size_t>(&rowOf(border) - m_rows.data()) + 1;
        setDefaults(control, part == Part::Through ? m_rows.first(after) : m_rows.subspan(after));
    }

    /// Reads every saved property in order and then stores them: a value that does not convert leaves the
    /// control as it was.
    void read(Control& control, PropertyBag& bag) const
    {
        std::vector<Variant> values;
        for (Row const& row : m_rows)
            if (row.saved == Saved::Yes)
                values.push_back(
                    convertedProperty(row.kind, bag.readProperty(row.name, savedFallback(control, row))));
        auto value = values.cbegin();
        for (Row const& row : m_rows) {
            if (row.saved != Saved::Yes)
                continue;
            if (keptType(row.kind) == VT_UNKNOWN)
                storeObject(control, row, *value++);
            else
                row.access.set(control, *value++);
        }
    }

    void write(Control const& control, PropertyBag& bag) const
    {
        std::vector<std::wstring_view> written;
        for (Row const& row : m_rows) {
            if (row.saved == Saved::No)
                continue;
            // Of a name that stands twice the last value counts, even where it is the default.
            bool const again = std::ranges::find(written, row.name) != written.end();
            bool const stored = bag.writeProperty(row.name, savedProperty(row.kind, row.access.get(control)),
                                                  again ? Variant() : savedFallback(control, row));
            if (stored)
                written.push_back(row.name);
        }
    }

private:
    /// What the setter does once its value is converted.
    void assign(Control& control, Row const& row, Variant const& converted) const
    {
        if (!row.assign)
            row.access.set(control, converted);
        else if (!row.assign(control, converted))
            return;
        control.propertyChanged(row.id, row.repaint == Repaint::No ? ViewChange::No : ViewChange::Yes);
        if (row.repaint == Repaint::AfterMeasuring)
            control.onMeasure();
        if (row.repaint == Repaint::Yes || row.repaint == Repaint::AfterMeasuring)
            control.repaint();
    }
    static void setDefaults(Control& control, std::span<Row const> rows)
    {
        for (Row const& row : rows)
            if (row.atStart == AtStart::Default)
                row.access.set(control, fallbackOf(control, row));
    }
    void storeObject(Control& control, Row const& row, Variant const& value) const
    {
        if (m_objects == LoadedObjects::ThroughSetters)
            assign(control, row, value);
        else
            row.access.set(control, value);
    }
    static Variant fallbackOf(Control const& control, Row const& row)
    {
        if (isFont(row.kind)) // the container's, already a copy
            return Variant::ofUnknown(control.container().ambientFont().get());
        if (row.kind == PropertyKind::Text)
            return Variant::ofString(row.fallbackText);
        return plainFallback(row.kind, row.fallback);
    }
    static Variant savedFallback(Control const& control, Row const& row)
    {
        return savedProperty(row.kind, fallbackOf(control, row));
    }

    std::span<Row const> m_rows;
    LoadedObjects m_objects;
};

/// A member's value as a variant of its property's kind, and back into a caller's out-parameter.
inline Variant argumentValue(PropertyKind, BSTR value) { return Variant::ofString(Bstr::viewOf(value)); }
inline Variant argumentValue(PropertyKind, VARIANT const& value) { return Variant::copyOf(value); }
inline Variant argumentValue(PropertyKind, OLE_COLOR value) { return fieldValue(value); }
inline Variant argumentValue(PropertyKind kind, short value)
{
    return keptType(kind) == VT_BOOL ? Variant::ofBool(value != VARIANT_FALSE) : Variant::ofShort(value);
}
template <class Enumeration>
requires std::is_enum_v<Enumeration> Variant argumentValue(PropertyKind, Enumeration value)
{
    return Variant::ofLong(static_cast<long>(value));
}
inline void answerValue(Variant const& value, BSTR& out) { out = value.toString().copy(); }
inline void answerValue(Variant const& value, VARIANT& out) { out = Variant(value).detach(); }
inline void answerValue(Variant const& value, OLE_COLOR& out)
{
    out = static_cast<OLE_COLOR>(value.get().lVal);
}
inline void answerValue(Variant const& value, short& out) { out = value.get().iVal; } // VT_BOOL shares it
template <class Enumeration>
requires std::is_enum_v<Enumeration>
void answerValue(Variant const& value, Enumeration& out) { out = static_cast<Enumeration>(value.toLong()); }

/// A property's members as a vtable has them.
template <class Control, class Value>
HRESULT getMember(Control& control, PropertyTable<Control> const& table, DISPID id, Value* value) noexcept
{
    return control.call([&] {
        deref(value);
        answerValue(table.rowOf(id).access.get(control), *value);
    });
}
template <class Control, class Value>
HRESULT putMember(Control& control, PropertyTable<Control> const& table, DISPID id,
                  Value const& value) noexcept
{
    return control.call([&] {
        auto const& row = table.rowOf(id);
        table.put(control, row, argumentValue(row.kind, value));
    });
}
template <class Control, class Object>
HRESULT getObjectMember(Control& control, PropertyTable<Control> const& table, DISPID id,
                        Object** value) noexcept
{
    return control.call([&] {
        deref(value) = nullptr;
        *value = query<Object>(table.rowOf(id).access.get(control).toObject().get()).detach();
    });
}
template <class Control>
HRESULT putObjectMember(Control& control, PropertyTable<Control> const& table, DISPID id,
                        IUnknown* value) noexcept
{
    return control.call([&] { table.put(control, table.rowOf(id), Variant::ofUnknown(value)); });
}

} // namespace quillet

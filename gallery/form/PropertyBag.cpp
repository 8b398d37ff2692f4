// A property bag in memory: reading with conversion, and writing.
#include "gallery/form/PropertyBag.h"

#include "base/ComCall.h"
#include "base/RunTimeError.h"
#include "gallery/form/Names.h"

namespace quillet::gallery {

namespace {

/// value in the wanted type; an object stays one, by the interface that was asked for.
Variant inType(Variant const& value, VARTYPE wanted)
{
    if (wanted == VT_EMPTY || wanted == value.type())
        return value;
    if (wanted == VT_UNKNOWN)
        return Variant::ofUnknown(value.toObject().get());
    if (wanted == VT_DISPATCH)
        return Variant::ofDispatch(value.toObject().as<IDispatch>().get());
    return value.convertedTo(wanted);
}

} // namespace

Variant const* PropertyBag::find(std::wstring_view name) const noexcept
{
    for (Entry const& entry : m_entries)
        if (sameName(entry.name, name))
            return &entry.value;
    return nullptr;
}

void PropertyBag::set(std::wstring_view name, Variant value)
{
    for (Entry& entry : m_entries)
        if (sameName(entry.name, name)) {
            entry.value = std::move(value);
            return;
        }
    m_entries.push_back({std::wstring(name), std::move(value)});
}

HRESULT STDMETHODCALLTYPE PropertyBag::Read(LPCOLESTR name, VARIANT* value, IErrorLog*)
{
    return comCall([&] {
        if (!name || !value)
            throw RunTimeError(E_POINTER);
        Variant const* const found = find(name);
        if (!found)
            return E_INVALIDARG;
        Variant answer = inType(*found, value->vt);
        // Only the type counts on entry: callers set it on a variant whose value they never initialised.
        *value = answer.detach();
        return S_OK;
    });
}

HRESULT STDMETHODCALLTYPE PropertyBag::Write(LPCOLESTR name, VARIANT* value)
{
    return comCall([&] { set(&deref(name), Variant::copyOf(deref(value))); });
}

} // namespace quillet::gallery

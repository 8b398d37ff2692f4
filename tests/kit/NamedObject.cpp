// A late-bound object whose properties a test makes up: an extender, a form, a collection.
#include "kit/NamedObject.h"

#include "base/ComCall.h"

#include <algorithm>

namespace quillet::kit {

namespace {

std::string textOfWritten(Variant const& value)
{
    return orFallback(std::string("object"), [&] { return narrow(value.toString().view()); });
}

} // namespace

std::string narrow(std::wstring_view text)
{
    std::string result;
    for (wchar_t const character : text)
        result += character < 0x80 ? static_cast<char>(character) : '?';
    return result;
}

NamedObject::Property* NamedObject::find(std::wstring const& name)
{
    auto const found = std::ranges::find_if(m_properties, [&](Property& p) { return p.isNamed(name); });
    return found == m_properties.end() ? nullptr : &*found;
}

NamedObject::Property* NamedObject::find(DISPID id)
{
    auto const found = std::ranges::find(m_properties, id, &Property::id);
    return found == m_properties.end() ? nullptr : &*found;
}

NamedObject::Property& NamedObject::propertyNamed(std::wstring const& name)
{
    if (Property* const known = find(name))
        return *known;
    return m_properties.emplace_back(Property{name, ++m_lastId, {}, {}, {}, S_OK});
}

STDMETHODIMP NamedObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids)
{
    std::fill_n(ids, count, DISPID_UNKNOWN);
    Property const* const property = count == 1 ? find(std::wstring(names[0])) : nullptr;
    if (!property) {
        m_record->note(m_who + '.' + narrow(names[0]) + " (unknown)");
        return DISP_E_UNKNOWNNAME;
    }
    ids[0] = property->id;
    return S_OK;
}

STDMETHODIMP NamedObject::Invoke(DISPID id, REFIID, LCID, WORD kind, DISPPARAMS* arguments, VARIANT* result,
                                 EXCEPINFO*, UINT*)
{
    ComPtr<IUnknown> const alive(unknown());
    Property* property = find(id);
    if (!property || !arguments)
        return DISP_E_MEMBERNOTFOUND;
    bool const writes = kind & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF);
    if (writes && arguments->cArgs != 1)
        return DISP_E_BADPARAMCOUNT;
    std::string const called = m_who + '.' + narrow(property->name);
    m_record->note(writes ? called + " = " + textOfWritten(Variant::copyOf(arguments->rgvarg[0])) : called);
    property = find(id); // what hears of the call may have taken the property away
    if (!property)
        return DISP_E_MEMBERNOTFOUND;
    return writes ? write(*property, *arguments) : read(*property, *arguments, result);
}

HRESULT NamedObject::read(Property const& property, DISPPARAMS const& arguments, VARIANT* result)
{
    if (FAILED(property.failure))
        return property.failure;
    Variant const argument = arguments.cArgs ? Variant::copyOf(arguments.rgvarg[0]) : Variant();
    Variant value = property.provider ? property.provider(argument) : property.value;
    if (result)
        *result = value.detach();
    return S_OK;
}

HRESULT NamedObject::write(Property& property, DISPPARAMS const& arguments)
{
    Variant const value = Variant::copyOf(arguments.rgvarg[0]);
    if (FAILED(property.failure))
        return property.failure;
    property.value = value;
    if (property.written)
        property.written(value);
    return S_OK;
}

} // namespace quillet::kit

// Members of somebody else's object, reached by name at run time.
#include "base/LateBound.h"

#include "base/RunTimeError.h"

namespace quillet {

namespace {

IDispatch& required(IDispatch* object)
{
    if (!object)
        throw RunTimeError(ErrorNumber::ObjectNotSet);
    return *object;
}

DISPID identifierOf(IDispatch* object, wchar_t const* name)
{
    DISPID id = DISPID_UNKNOWN;
    auto* text = const_cast<wchar_t*>(name);
    check(required(object).GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &id));
    return id;
}

} // namespace

Variant propertyById(IDispatch* object, DISPID id)
{
    DISPPARAMS none = {};
    Variant result;
    check(required(object).Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none,
                                  result.address(), nullptr, nullptr));
    return result;
}

Variant propertyByName(IDispatch* object, wchar_t const* name)
{
    return propertyById(object, identifierOf(object, name));
}

void putPropertyByName(IDispatch* object, wchar_t const* name, Variant value)
{
    DISPID const id = identifierOf(object, name);
    DISPID assigned = DISPID_PROPERTYPUT;
    DISPPARAMS arguments = {value.address(), &assigned, 1, 1};
    check(object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYPUT, &arguments, nullptr,
                         nullptr, nullptr));
}

Variant itemByIndex(IDispatch* collection, long index)
{
    DISPID const id = identifierOf(collection, L"Item");
    Variant argument = Variant::ofLong(index);
    DISPPARAMS arguments = {argument.address(), nullptr, 1, 0};
    Variant result;
    // A collection may offer its items as a property or as a method.
    check(collection->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET | DISPATCH_METHOD,
                             &arguments, result.address(), nullptr, nullptr));
    return result;
}

} // namespace quillet

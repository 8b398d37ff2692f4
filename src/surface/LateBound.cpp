// Members of somebody else's object, reached by name at run time.
#include "surface/LateBound.h"

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

void assignByName(IDispatch* object, wchar_t const* name, Variant value)
{
    DISPID const id = identifierOf(object, name);
    DISPID target = DISPID_PROPERTYPUT;
    DISPPARAMS arguments = {value.address(), &target, 1, 1};
    check(object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYPUT, &arguments, nullptr, nullptr,
                         nullptr));
}

} // namespace quillet

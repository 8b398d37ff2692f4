// Late-bound calls, as a script makes them.
#include "kit/ByName.h"

#include "kit/Fonts.h"
#include "kit/NamedObject.h"

#include <gtest/gtest.h>

namespace quillet::kit {

namespace {

Called invokeNamed(IDispatch& object, wchar_t const* name, WORD kind, std::vector<Variant> const& arguments)
{
    DISPID const id = idOf(object, name);
    if (id == DISPID_UNKNOWN) {
        Called unknown;
        unknown.result = DISP_E_UNKNOWNNAME;
        return unknown;
    }
    return invoke(object, id, kind, arguments);
}

std::wstring taken(BSTR owned) { return std::wstring(Bstr::adopt(owned).view()); }

std::string textOfObject(IUnknown* object)
{
    if (auto const font = query<IFont>(object))
        return narrow(nameOf(*font.get())) + ' ' + std::to_string(pointsOf(*font.get()));
    auto const picture = query<IPicture>(object);
    OLE_XSIZE_HIMETRIC width = 0;
    SHORT type = 0;
    if (!picture || FAILED(picture->get_Type(&type)) || type == 0)
        return "none";
    picture->get_Width(&width);
    return "picture " + std::to_string(type) + ' ' + std::to_string(width);
}

} // namespace

DISPID idOf(IDispatch& object, wchar_t const* name)
{
    auto* text = const_cast<wchar_t*>(name);
    DISPID id = DISPID_UNKNOWN;
    return SUCCEEDED(object.GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &id)) ? id
                                                                                         : DISPID_UNKNOWN;
}

Called invoke(IDispatch& object, DISPID id, WORD kind, std::vector<Variant> const& arguments)
{
    std::vector<VARIANTARG> reversed; // borrowed copies, the last argument first
    for (auto each = arguments.rbegin(); each != arguments.rend(); ++each)
        reversed.push_back(each->get());
    DISPID property = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{};
    parameters.rgvarg = reversed.data();
    parameters.cArgs = static_cast<UINT>(reversed.size());
    if (kind & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) {
        parameters.rgdispidNamedArgs = &property;
        parameters.cNamedArgs = 1;
    }
    Called called;
    EXCEPINFO exception{};
    UINT badArgument = 0;
    called.result = object.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters, called.value.put(),
                                  &exception, &badArgument);
    if (exception.pfnDeferredFillIn)
        exception.pfnDeferredFillIn(&exception);
    called.code = exception.scode;
    called.source = taken(exception.bstrSource);
    called.description = taken(exception.bstrDescription);
    called.helpFile = taken(exception.bstrHelpFile);
    called.helpContext = exception.dwHelpContext;
    return called;
}

Called getByName(IDispatch& object, wchar_t const* name)
{
    return invokeNamed(object, name, DISPATCH_PROPERTYGET, {});
}

Called putByName(IDispatch& object, wchar_t const* name, Variant const& value)
{
    return invokeNamed(object, name, DISPATCH_PROPERTYPUT, {value});
}

Called setByName(IDispatch& object, wchar_t const* name, IUnknown* value)
{
    return invokeNamed(object, name, DISPATCH_PROPERTYPUTREF,
                       {Variant::ofDispatch(query<IDispatch>(value).get())});
}

Called callByName(IDispatch& object, wchar_t const* name, std::vector<Variant> const& arguments)
{
    return invokeNamed(object, name, DISPATCH_METHOD, arguments);
}

std::string textOf(Variant const& value)
{
    if (value.type() == VT_DISPATCH || value.type() == VT_UNKNOWN)
        return textOfObject(value.toObject().get());
    if (value.type() == VT_BSTR)
        return narrow(Bstr::viewOf(value.get().bstrVal));
    if (value.type() == VT_UI4)
        return std::to_string(static_cast<long>(value.get().ulVal));
    return std::to_string(value.toLong());
}

std::string textByName(IDispatch& object, wchar_t const* name)
{
    Called const got = getByName(object, name);
    EXPECT_EQ(got.result, S_OK) << narrow(name);
    return textOf(got.value);
}

std::vector<std::string> textsByName(IDispatch& object, std::vector<std::wstring> const& names)
{
    std::vector<std::string> texts;
    for (std::wstring const& name : names)
        texts.push_back(narrow(name) + " = " + textByName(object, name.c_str()));
    return texts;
}

} // namespace quillet::kit

// Members that are called by name: names, arguments and calls to other objects.
#include "gallery/LateBound.h"

namespace quillet::gallery {

namespace {

DISPID idByName(IDispatch& object, wchar_t const* name)
{
    DISPID id = DISPID_UNKNOWN;
    auto* written = const_cast<LPOLESTR>(name);
    check(object.GetIDsOfNames(IID_NULL, &written, 1, LOCALE_USER_DEFAULT, &id));
    return id;
}

} // namespace

Variant Arguments::at(unsigned index) const
{
    if (index >= count())
        throw RunTimeError(DISP_E_PARAMNOTOPTIONAL);
    return Variant::copyOf(deref(m_params->rgvarg + (count() - 1 - index)));
}

HRESULT answerNames(LPOLESTR* names, UINT count, DISPID* ids, DISPID (*find)(void*, std::wstring_view),
                    void* owner)
{
    if (!names || !ids)
        return E_POINTER;
    if (count == 0)
        return E_INVALIDARG;
    HRESULT result = S_OK;
    for (UINT i = 0; i < count; ++i) {
        // Only the first is a member; the others would be its named arguments, which nothing here has.
        ids[i] = i == 0 && names[0] ? find(owner, names[0]) : DISPID_UNKNOWN;
        if (ids[i] == DISPID_UNKNOWN)
            result = DISP_E_UNKNOWNNAME;
    }
    return result;
}

Variant getByName(IDispatch& object, wchar_t const* name)
{
    DISPPARAMS none{};
    Variant result;
    check(object.Invoke(idByName(object, name), IID_NULL, LOCALE_USER_DEFAULT,
                        DISPATCH_PROPERTYGET | DISPATCH_METHOD, &none, result.put(), nullptr, nullptr));
    return result;
}

void putByName(IDispatch& object, wchar_t const* name, Variant const& value)
{
    Variant argument = value;
    DISPID target = DISPID_PROPERTYPUT;
    DISPPARAMS params{argument.address(), &target, 1, 1};
    bool const isObject = value.type() == VT_DISPATCH || value.type() == VT_UNKNOWN;
    WORD const kind = isObject ? DISPATCH_PROPERTYPUTREF : DISPATCH_PROPERTYPUT;
    check(object.Invoke(idByName(object, name), IID_NULL, LOCALE_USER_DEFAULT, kind, &params, nullptr,
                        nullptr, nullptr));
}

HRESULT callById(IDispatch& object, DISPID id) noexcept
{
    DISPPARAMS none{};
    return object.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &none, nullptr, nullptr,
                         nullptr);
}

} // namespace quillet::gallery

// VARIANTs: making, clearing and copying. Arrays and records are refused, as nothing here can make one.
#include <windows.h>

#include <oleauto.h>

namespace {

bool isKnown(VARTYPE type) noexcept
{
    VARTYPE const plain = type & VT_TYPEMASK;
    if (type & (VT_VECTOR | VT_RESERVED))
        return false;
    if (plain == VT_EMPTY || plain == VT_NULL)
        return (type & ~VT_TYPEMASK) == 0;
    return plain <= VT_UINT && plain != 15 && plain != VT_VOID;
}

bool holdsObject(VARTYPE type) noexcept { return type == VT_UNKNOWN || type == VT_DISPATCH; }

BSTR copied(BSTR text) noexcept { return text ? ::SysAllocStringLen(text, ::SysStringLen(text)) : nullptr; }

HRESULT copyInto(VARIANT& target, VARIANT const& source) noexcept
{
    VARIANT copy = source;
    if (source.vt & VT_ARRAY)
        copy.parray = nullptr;
    else if (source.vt == VT_BSTR && source.bstrVal && !(copy.bstrVal = copied(source.bstrVal)))
        return E_OUTOFMEMORY;
    else if (holdsObject(source.vt) && source.punkVal)
        source.punkVal->AddRef();
    ::VariantClear(&target);
    target = copy;
    return S_OK;
}

/// What a reference refers to, as a value that is still the referrer's.
HRESULT followed(VARIANT const& source, VARIANT& value) noexcept
{
    value.vt = source.vt & static_cast<VARTYPE>(~VT_BYREF);
    if (!source.byref)
        return E_INVALIDARG;
    switch (value.vt) {
    case VT_I1:
    case VT_UI1:
        value.bVal = *source.pbVal;
        return S_OK;
    case VT_I2:
    case VT_UI2:
    case VT_BOOL:
        value.iVal = *source.piVal;
        return S_OK;
    case VT_I4:
    case VT_UI4:
    case VT_INT:
    case VT_UINT:
    case VT_ERROR:
    case VT_R4:
        value.lVal = *source.plVal;
        return S_OK;
    case VT_I8:
    case VT_UI8:
    case VT_R8:
    case VT_CY:
    case VT_DATE:
        value.llVal = *source.pllVal;
        return S_OK;
    case VT_BSTR:
        value.bstrVal = *source.pbstrVal;
        return S_OK;
    case VT_UNKNOWN:
    case VT_DISPATCH:
        value.punkVal = *source.ppunkVal;
        return S_OK;
    case VT_VARIANT:
        value = *source.pvarVal;
        return value.vt & VT_BYREF ? E_INVALIDARG : S_OK;
    default:
        return DISP_E_BADVARTYPE;
    }
}

} // namespace

void WINAPI VariantInit(VARIANT* value) { value->vt = VT_EMPTY; }

HRESULT WINAPI VariantClear(VARIANT* value)
{
    if (!isKnown(value->vt))
        return DISP_E_BADVARTYPE;
    VARIANT const old = *value;
    value->vt = VT_EMPTY;
    if (old.vt == VT_BSTR)
        ::SysFreeString(old.bstrVal);
    else if (holdsObject(old.vt) && old.punkVal)
        old.punkVal->Release();
    return S_OK;
}

HRESULT WINAPI VariantCopy(VARIANT* target, VARIANT const* source)
{
    if (!isKnown(source->vt))
        return DISP_E_BADVARTYPE;
    return target == source ? S_OK : copyInto(*target, *source);
}

HRESULT WINAPI VariantCopyInd(VARIANT* target, VARIANT const* source)
{
    if (!(source->vt & VT_BYREF))
        return ::VariantCopy(target, source);
    if (!isKnown(source->vt))
        return DISP_E_BADVARTYPE;
    VARIANT value;
    HRESULT const result = followed(*source, value);
    return FAILED(result) ? result : copyInto(*target, value);
}

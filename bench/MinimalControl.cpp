// A control that does nothing but hold one number.
#include "bench/MinimalControl.h"

namespace quillet::bench {

HRESULT MinimalControl::get(LONG* value)
{
    *value = m_value;
    return S_OK;
}

HRESULT MinimalControl::put(LONG value)
{
    m_value = value;
    return S_OK;
}

HRESULT MinimalControl::GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids)
{
    bool const known = ::lstrcmpiW(names[0], L"Number") == 0;
    ids[0] = known ? 1 : DISPID_UNKNOWN;
    return known ? S_OK : DISP_E_UNKNOWNNAME;
}

HRESULT MinimalControl::Invoke(DISPID, REFIID, LCID, WORD kind, DISPPARAMS* arguments, VARIANT* result,
                               EXCEPINFO*, UINT*)
{
    if (kind & DISPATCH_PROPERTYPUT)
        return put(arguments->rgvarg->lVal);
    result->vt = VT_I4;
    return get(&result->lVal);
}

} // namespace quillet::bench

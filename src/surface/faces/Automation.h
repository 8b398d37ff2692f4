// A control's dual interface, for late binding.
#pragma once

#include "base/ComPtr.h"
#include "surface/faces/Face.h"

#include <oaidl.h>
#include <windows.h>

namespace quillet {

/// Throws for arguments that cannot be read: converting them relies on their being readable.
void requireReadable(DISPPARAMS const& arguments);

/// A description from the type library in the component's own file. Throws when that cannot be loaded.
ComPtr<ITypeInfo> ownTypeInfo(GUID const& id);

/// The part of automation that does not depend on the interface.
class Automation {
public:
    HRESULT getTypeInfo(Surface& surface, UINT index, ITypeInfo** info) noexcept;
    HRESULT getIdsOfNames(Surface& surface, LPOLESTR* names, UINT count, DISPID* ids) noexcept;
    HRESULT invoke(Surface& surface, IDispatch* dual, DISPID id, WORD kind, DISPPARAMS* arguments,
                   VARIANT* result, EXCEPINFO* exception, UINT* badArgument) noexcept;

private:
    ComPtr<ITypeInfo> m_info; ///< loaded when a host first asks for it
};

/// Implements IDispatch for a dual interface. A control derives from this first and from Surface second: so
/// its many members are called without a detour.
template <class Interface> class Dual : public Face<Interface> {
public:
    using Face<Interface>::Face;

    STDMETHODIMP GetTypeInfoCount(UINT* count) override
    {
        if (!count)
            return E_POINTER;
        *count = 1;
        return S_OK;
    }
    STDMETHODIMP GetTypeInfo(UINT index, LCID, ITypeInfo** info) override
    {
        return m_automation.getTypeInfo(this->m_surface, index, info);
    }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override
    {
        return m_automation.getIdsOfNames(this->m_surface, names, count, ids);
    }
    STDMETHODIMP Invoke(DISPID id, REFIID reserved, LCID, WORD kind, DISPPARAMS* arguments, VARIANT* result,
                        EXCEPINFO* exception, UINT* badArgument) override
    {
        if (reserved != IID_NULL)
            return DISP_E_UNKNOWNINTERFACE;
        return m_automation.invoke(this->m_surface, this, id, kind, arguments, result, exception,
                                   badArgument);
    }

private:
    Automation m_automation;
};

} // namespace quillet

// Faces of a method or two: class information, error support, a second site, safety.
#include "surface/faces/SmallFaces.h"

#include "base/RunTimeError.h"
#include "surface/Surface.h"

namespace quillet {

namespace {

/// What may be promised for an interface: that loading saved data is safe, whatever the data.
DWORD supportedSafety(REFIID iid) noexcept
{
    bool const loads = iid == IID_IPersist || iid == IID_IPersistStreamInit || iid == IID_IPersistStorage ||
                       iid == IID_IPersistPropertyBag;
    return loads ? INTERFACESAFE_FOR_UNTRUSTED_DATA : 0;
}

} // namespace

HRESULT ProvidedClassInfo::GetClassInfo(ITypeInfo** info)
{
    return comCall([&] {
        deref(info) = nullptr;
        *info = ownTypeInfo(m_surface.controlClass().classId).detach();
    });
}

HRESULT ProvidedClassInfo::GetGUID(DWORD kind, GUID* guid)
{
    return comCall([&] {
        deref(guid) = GUID_NULL;
        if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID)
            throw RunTimeError(E_INVALIDARG);
        *guid = m_surface.controlClass().eventsId;
    });
}

HRESULT ErrorInfoSupport::InterfaceSupportsErrorInfo(REFIID iid)
{
    return iid == m_surface.controlClass().interfaceId || iid == IID_IDispatch ? S_OK : S_FALSE;
}

HRESULT ObjectWithSite::SetSite(IUnknown* site)
{
    return m_surface.call([&] { m_site = site; });
}

HRESULT ObjectWithSite::GetSite(REFIID iid, void** site)
{
    return comCall([&] {
        deref(site) = nullptr;
        if (!m_site)
            throw RunTimeError(E_FAIL);
        return m_site->QueryInterface(iid, site);
    });
}

HRESULT ObjectSafety::GetInterfaceSafetyOptions(REFIID iid, DWORD* supported, DWORD* enabled)
{
    return comCall([&] {
        deref(supported) = 0;
        deref(enabled) = 0;
        if (!query<IUnknown>(m_surface.outer(), iid))
            throw RunTimeError(E_NOINTERFACE);
        *supported = supportedSafety(iid);
        *enabled = m_enabled & *supported;
    });
}

HRESULT ObjectSafety::SetInterfaceSafetyOptions(REFIID iid, DWORD mask, DWORD enabled)
{
    return comCall([&] {
        if (!query<IUnknown>(m_surface.outer(), iid))
            throw RunTimeError(E_NOINTERFACE);
        if (mask & ~supportedSafety(iid))
            throw RunTimeError(E_FAIL);
        m_enabled = (m_enabled & ~mask) | (enabled & mask);
    });
}

} // namespace quillet

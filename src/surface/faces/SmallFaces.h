// Faces of a method or two: class information, error support, a second site, safety.
#pragma once

#include "base/ComPtr.h"
#include "surface/faces/Face.h"

#include <objsafe.h>
#include <ocidl.h>
#include <windows.h>

namespace quillet {

/// IProvideClassInfo2: the class's description and its default source of events.
class ProvidedClassInfo final : public Face<IProvideClassInfo2> {
public:
    using Face::Face;

    STDMETHODIMP GetClassInfo(ITypeInfo** info) override;
    STDMETHODIMP GetGUID(DWORD kind, GUID* guid) override;
};

/// ISupportErrorInfo: which interfaces' failures come with a description.
class ErrorInfoSupport final : public Face<ISupportErrorInfo> {
public:
    using Face::Face;

    STDMETHODIMP InterfaceSupportsErrorInfo(REFIID iid) override;
};

/// IObjectWithSite: keeps what a container gives, beside the client site and never instead of it.
class ObjectWithSite final : public Face<IObjectWithSite> {
public:
    using Face::Face;

    STDMETHODIMP SetSite(IUnknown* site) override;
    STDMETHODIMP GetSite(REFIID iid, void** site) override;

private:
    ComPtr<IUnknown> m_site;
};

/// IObjectSafety: the control is safe for data from anywhere, and not safe for callers that are not trusted,
/// as WindowProc takes message parameters with addresses in them.
class ObjectSafety final : public Face<IObjectSafety> {
public:
    using Face::Face;

    STDMETHODIMP GetInterfaceSafetyOptions(REFIID iid, DWORD* supported, DWORD* enabled) override;
    STDMETHODIMP SetInterfaceSafetyOptions(REFIID iid, DWORD mask, DWORD enabled) override;

private:
    DWORD m_enabled = 0;
};

} // namespace quillet

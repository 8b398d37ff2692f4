// IOleObject: site, extent, verbs, closing.
#pragma once

#include "base/ComPtr.h"
#include "surface/faces/Face.h"

#include <windows.h>

#include <oleidl.h>

namespace quillet {

/// Throws unless the aspect is the one that controls have.
void requireContent(DWORD aspect);

class OleObject final : public Face<IOleObject> {
public:
    using Face::Face;

    STDMETHODIMP SetClientSite(IOleClientSite* site) override;
    STDMETHODIMP GetClientSite(IOleClientSite** site) override;
    STDMETHODIMP SetHostNames(LPCOLESTR application, LPCOLESTR document) override;
    STDMETHODIMP Close(DWORD saveOption) override;
    STDMETHODIMP SetMoniker(DWORD which, IMoniker* moniker) override;
    STDMETHODIMP GetMoniker(DWORD assign, DWORD which, IMoniker** moniker) override;
    STDMETHODIMP InitFromData(IDataObject* data, WINBOOL creation, DWORD reserved) override;
    STDMETHODIMP GetClipboardData(DWORD reserved, IDataObject** data) override;
    STDMETHODIMP DoVerb(LONG verb, MSG* message, IOleClientSite* site, LONG index, HWND parent,
                        LPCRECT position) override;
    STDMETHODIMP EnumVerbs(IEnumOLEVERB** enumerator) override;
    STDMETHODIMP Update() override;
    STDMETHODIMP IsUpToDate() override;
    STDMETHODIMP GetUserClassID(CLSID* classId) override;
    STDMETHODIMP GetUserType(DWORD form, LPOLESTR* text) override;
    STDMETHODIMP SetExtent(DWORD aspect, SIZEL* extent) override;
    STDMETHODIMP GetExtent(DWORD aspect, SIZEL* extent) override;
    STDMETHODIMP Advise(IAdviseSink* sink, DWORD* cookie) override;
    STDMETHODIMP Unadvise(DWORD cookie) override;
    STDMETHODIMP EnumAdvise(IEnumSTATDATA** enumerator) override;
    STDMETHODIMP GetMiscStatus(DWORD aspect, DWORD* status) override;
    STDMETHODIMP SetColorScheme(LOGPALETTE* palette) override;

    /// The size in HIMETRIC that the container last gave; it is echoed and never sizes the window.
    SIZEL extent() const noexcept { return m_extent; }
    /// The control's own wish, in HIMETRIC, for a container that has no other way to hear it.
    void setWidth(long width) noexcept;
    void notifySaved() noexcept;
    void disconnect() noexcept { m_adviseHolder.reset(); }

private:
    IOleAdviseHolder* adviseHolder();

    ComPtr<IOleAdviseHolder> m_adviseHolder;
    SIZEL m_extent = {2143, 873}; // 81 by 33 pixels at 96 DPI, a command button's usual size
};

} // namespace quillet

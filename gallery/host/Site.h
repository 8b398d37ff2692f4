// The site of one ActiveX control: everything that the control can ask its container.
#pragma once

#include "base/Counted.h"
#include "gallery/host/Ambients.h"
#include "gallery/host/LateBoundObject.h"

#include <ocidl.h>
#include <windows.h>

#include <oleidl.h>

namespace quillet::gallery {

class HostedControl;

/// Client site, control site, in-place site and ambients in one object. Its control may end before it does;
/// then everything answers E_UNEXPECTED.
class Site final : public LateBoundObject<IOleClientSite, IOleControlSite, IOleInPlaceSiteEx> {
public:
    explicit Site(HostedControl& control) noexcept : m_control(&control) {}
    void disconnect() noexcept { m_control = nullptr; }

    // IOleClientSite
    HRESULT STDMETHODCALLTYPE SaveObject() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetContainer(IOleContainer** out) override;
    HRESULT STDMETHODCALLTYPE ShowObject() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnShowWindow(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE RequestNewObjectLayout() override { return E_NOTIMPL; }

    // IOleControlSite
    HRESULT STDMETHODCALLTYPE OnControlInfoChanged() override { return S_OK; } // asked afresh for each key
    HRESULT STDMETHODCALLTYPE LockInPlaceActive(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetExtendedControl(IDispatch** out) override;
    HRESULT STDMETHODCALLTYPE TransformCoords(POINTL* himetric, POINTF* container, DWORD flags) override;
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG* message, DWORD modifiers) override;
    HRESULT STDMETHODCALLTYPE OnFocus(BOOL gotFocus) override;
    HRESULT STDMETHODCALLTYPE ShowPropertyFrame() override { return E_NOTIMPL; }

    // IOleWindow and the in-place site
    HRESULT STDMETHODCALLTYPE GetWindow(HWND* out) override;
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE CanInPlaceActivate() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnInPlaceActivate() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnUIActivate() override;
    HRESULT STDMETHODCALLTYPE GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document,
                                               RECT* place, RECT* clip, OLEINPLACEFRAMEINFO* info) override;
    HRESULT STDMETHODCALLTYPE Scroll(SIZE) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnUIDeactivate(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnInPlaceDeactivate() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE DiscardUndoState() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE DeactivateAndUndo() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnPosRectChange(RECT const* place) override;
    HRESULT STDMETHODCALLTYPE OnInPlaceActivateEx(BOOL* noRedraw, DWORD flags) override;
    HRESULT STDMETHODCALLTYPE OnInPlaceDeactivateEx(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE RequestUIActivate() override { return S_OK; }

protected:
    DISPID idOf(std::wstring_view name) override { return ambientId(name); }
    Variant invoke(DISPID id, WORD flags, Arguments const& arguments) override;
    IUnknown* inheritedInterface(REFIID iid) noexcept override;

private:
    HostedControl& connected() const;

    HostedControl* m_control;
};

} // namespace quillet::gallery

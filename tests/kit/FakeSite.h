// A recording counterpart of what a container gives to one control: its site, ambient properties and
// extender.
#pragma once

#include "kit/Counterpart.h"
#include "kit/FakeForm.h"
#include "kit/NamedObject.h"

#include <ocidl.h>
#include <olectl.h>
#include <windows.h>

#include <map>
#include <string>

namespace quillet::kit {

/// Offers every interface and answers every call as a rich container does; a test hides interfaces and
/// changes answers through the form's record ("Site.GetContainer"). Extended activation (IOleInPlaceSiteEx)
/// is hidden at first. Ambient properties are noted as "Ambient(identifier)".
class FakeSite final
    : public DispatchCounterpart<IOleClientSite, IOleControlSite, IOleInPlaceSiteEx, IDispatch> {
public:
    FakeSite(FakeForm& form, RECT const& position, std::wstring const& name);

    RECT position;
    RECT clip;
    std::map<DISPID, Variant> ambients; ///< what is not here is not found
    /// The object in the site, uncounted: the container's OnPosRectChange answers it with the rectangle.
    IOleInPlaceObject* inPlaceObject = nullptr;
    /// The window of the form's document, of containers that have several; none at first.
    ComPtr<FakeFrame> document;

    NamedObject& extender() noexcept { return *m_extender.get(); }
    void setAmbient(DISPID id, Variant value) { ambients[id] = std::move(value); }
    void removeAmbient(DISPID id) { ambients.erase(id); }
    void leaveForm() noexcept { m_form = nullptr; }
    /// Breaks the circle of the form and the site; the site is of no further use.
    void dismantle();

    // IOleClientSite
    STDMETHODIMP SaveObject() override { return asked("SaveObject"); }
    STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker** moniker) override;
    STDMETHODIMP GetContainer(IOleContainer** container) override;
    STDMETHODIMP ShowObject() override { return asked("ShowObject"); }
    STDMETHODIMP OnShowWindow(BOOL) override { return asked("OnShowWindow"); }
    STDMETHODIMP RequestNewObjectLayout() override { return E_NOTIMPL; }

    // IOleControlSite
    STDMETHODIMP OnControlInfoChanged() override { return asked("OnControlInfoChanged"); }
    STDMETHODIMP LockInPlaceActive(BOOL) override { return asked("LockInPlaceActive"); }
    STDMETHODIMP GetExtendedControl(IDispatch** extender) override;
    STDMETHODIMP TransformCoords(POINTL*, POINTF*, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP TranslateAccelerator(MSG* message, DWORD modifiers) override;
    STDMETHODIMP OnFocus(BOOL gained) override;
    STDMETHODIMP ShowPropertyFrame() override { return asked("ShowPropertyFrame"); }

    // IOleInPlaceSiteEx
    STDMETHODIMP GetWindow(HWND* window) override;
    STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP CanInPlaceActivate() override { return asked("CanInPlaceActivate"); }
    STDMETHODIMP OnInPlaceActivate() override { return asked("OnInPlaceActivate"); }
    STDMETHODIMP OnUIActivate() override { return asked("OnUIActivate"); }
    STDMETHODIMP GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, RECT* positionOut,
                                  RECT* clipOut, OLEINPLACEFRAMEINFO* info) override;
    STDMETHODIMP Scroll(SIZE) override { return E_NOTIMPL; }
    STDMETHODIMP OnUIDeactivate(BOOL) override { return asked("OnUIDeactivate"); }
    STDMETHODIMP OnInPlaceDeactivate() override { return asked("OnInPlaceDeactivate"); }
    STDMETHODIMP DiscardUndoState() override { return E_NOTIMPL; }
    STDMETHODIMP DeactivateAndUndo() override { return E_NOTIMPL; }
    STDMETHODIMP OnPosRectChange(RECT const* rectangle) override;
    STDMETHODIMP OnInPlaceActivateEx(BOOL* redraw, DWORD flags) override;
    STDMETHODIMP OnInPlaceDeactivateEx(BOOL) override { return asked("OnInPlaceDeactivateEx"); }
    STDMETHODIMP RequestUIActivate() override { return asked("RequestUIActivate"); }

    // IDispatch: the ambient properties
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD kind, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                        UINT*) override;

private:
    ~FakeSite() override = default;
    void* faceOf(REFIID iid) noexcept override;
    HRESULT asked(std::string const& method, std::string const& details = {});
    /// Asks, and stores a counted reference unless the answer is a failure or nothing.
    template <class T, class Object> HRESULT handOut(char const* method, T** out, Object* object);

    FakeForm* m_form;
    SharedRecord m_record;
    HWND m_window;
    ComPtr<FakeFrame> m_frame;
    ComPtr<FakeContainer> m_container;
    ComPtr<NamedObject> m_extender;
};

} // namespace quillet::kit

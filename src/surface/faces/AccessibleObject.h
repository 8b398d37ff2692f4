// IAccessible: what screen readers and test tools see of a control.
#pragma once

#include "base/ComPtr.h"
#include "base/Counted.h"
#include "base/Handles.h"

#include <oleacc.h>
#include <windows.h>

#include <string>

namespace quillet {

class Surface;

/// What a control tells of itself; what every window has (focus, visibility, place) is not part of it.
struct AccessibleLook {
    LONG role = ROLE_SYSTEM_CLIENT;
    LONG state = 0;
    std::wstring name; ///< the caption without marks; empty where there is none
    std::wstring accessKey;
    wchar_t const* action = L""; ///< what a click does
};

/// An object of its own, which may outlive the control: every call fails then (CO_E_OBJNOTCONNECTED). It
/// has no children. Places are pixels of the screen.
class AccessibleObject final : public Counted<IAccessible, IOleWindow> {
public:
    explicit AccessibleObject(Surface& surface);

    /// The answer to a window's WM_GETOBJECT; 0 where the system cannot hand the object over.
    LRESULT handOver(WPARAM request) noexcept;
    void leave() noexcept { m_surface = nullptr; }

    // IDispatch, by the system's description of IAccessible
    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
    STDMETHODIMP GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale,
                               DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID reserved, LCID locale, WORD kind, DISPPARAMS* arguments,
                        VARIANT* result, EXCEPINFO* exception, UINT* badArgument) override;

    // IAccessible
    STDMETHODIMP get_accParent(IDispatch** parent) override;
    STDMETHODIMP get_accChildCount(long* count) override;
    STDMETHODIMP get_accChild(VARIANT child, IDispatch** found) override;
    STDMETHODIMP get_accName(VARIANT child, BSTR* name) override;
    STDMETHODIMP get_accValue(VARIANT child, BSTR* value) override;
    STDMETHODIMP get_accDescription(VARIANT child, BSTR* description) override;
    STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) override;
    STDMETHODIMP get_accState(VARIANT child, VARIANT* state) override;
    STDMETHODIMP get_accHelp(VARIANT child, BSTR* help) override;
    STDMETHODIMP get_accHelpTopic(BSTR* file, VARIANT child, long* topic) override;
    STDMETHODIMP get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) override;
    STDMETHODIMP get_accFocus(VARIANT* child) override;
    STDMETHODIMP get_accSelection(VARIANT* children) override;
    STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* action) override;
    STDMETHODIMP accSelect(long flags, VARIANT child) override;
    STDMETHODIMP accLocation(long* left, long* top, long* width, long* height, VARIANT child) override;
    STDMETHODIMP accNavigate(long direction, VARIANT start, VARIANT* end) override;
    STDMETHODIMP accHitTest(long left, long top, VARIANT* child) override;
    STDMETHODIMP accDoDefaultAction(VARIANT child) override;
    STDMETHODIMP put_accName(VARIANT child, BSTR name) override;
    STDMETHODIMP put_accValue(VARIANT child, BSTR value) override;

    // IOleWindow
    STDMETHODIMP GetWindow(HWND* window) override;
    STDMETHODIMP ContextSensitiveHelp(WINBOOL enter) override;

private:
    IUnknown* inheritedInterface(REFIID iid) noexcept override;

    template <class Body> HRESULT call(Body&& body) noexcept;
    /// The same for a member that may be asked about a child, of which there are none.
    template <class Body> HRESULT call(VARIANT const& child, Body&& body) noexcept;
    ITypeInfo& typeInfo();

    Surface* m_surface; ///< null when the control has ended
    UniqueLibrary m_library;
    ComPtr<ITypeInfo> m_typeInfo;
};

} // namespace quillet

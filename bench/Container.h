// The least container that a control takes for a whole one: nothing is recorded, so that the control's time
// is not hidden in its host's.
#pragma once

#include "base/ComPtr.h"

#include <ocidl.h>
#include <olectl.h>
#include <windows.h>

#include <oleidl.h>

#include <utility>
#include <vector>

namespace quillet::bench {

/// Counts references and nothing else: the bench owns its objects itself.
template <class... Interfaces> class Owned : public Interfaces... {
public:
    STDMETHODIMP_(ULONG) AddRef() override { return 2; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
};

/// An object that can be used by name alone.
class LateBound : public Owned<IDispatch> {
public:
    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
};

/// The form as its controls' extenders name it: it tells its window.
class FormFace final : public LateBound {
public:
    explicit FormFace(HWND window) : m_window(window) {}

    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                        UINT*) override;

private:
    HWND m_window;
};

/// What a control reads of its extender by name: no default button, no tooltip, the form as its container.
/// What it writes is taken and forgotten.
class Extender final : public LateBound {
public:
    explicit Extender(HWND form) : m_form(form) {}

    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                        UINT*) override;

private:
    FormFace m_form;
};

/// The controls of one form, as they find each other.
class Siblings final : public Owned<IOleContainer, IEnumUnknown> {
public:
    void add(ComPtr<IUnknown> control) { m_controls.push_back(std::move(control)); }
    void clear() { m_controls.clear(); }

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    // IOleContainer
    STDMETHODIMP ParseDisplayName(IBindCtx*, LPOLESTR, ULONG*, IMoniker**) override { return E_NOTIMPL; }
    STDMETHODIMP EnumObjects(DWORD, IEnumUnknown** enumerator) override;
    STDMETHODIMP LockContainer(BOOL) override { return S_OK; }
    // IEnumUnknown: one walk at a time
    STDMETHODIMP Next(ULONG count, IUnknown** controls, ULONG* fetched) override;
    STDMETHODIMP Skip(ULONG) override { return E_NOTIMPL; }
    STDMETHODIMP Reset() override { return E_NOTIMPL; }
    STDMETHODIMP Clone(IEnumUnknown**) override { return E_NOTIMPL; }

private:
    std::vector<ComPtr<IUnknown>> m_controls;
    std::size_t m_next = 0;
};

/// The window's frame, and the form's font; there are no menus and no borders to negotiate.
class Frame final : public Owned<IOleInPlaceFrame> {
public:
    explicit Frame(HWND window, IOleContainer* container = nullptr);

    IOleContainer* container() const noexcept { return m_container; }
    IFont* font() const noexcept { return m_font.get(); }

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP GetWindow(HWND* window) override;
    STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP GetBorder(RECT*) override { return INPLACE_E_NOTOOLSPACE; }
    STDMETHODIMP RequestBorderSpace(BORDERWIDTHS const*) override { return INPLACE_E_NOTOOLSPACE; }
    STDMETHODIMP SetBorderSpace(BORDERWIDTHS const*) override { return S_OK; }
    STDMETHODIMP SetActiveObject(IOleInPlaceActiveObject*, LPCOLESTR) override { return S_OK; }
    STDMETHODIMP InsertMenus(HMENU, OLEMENUGROUPWIDTHS*) override { return E_NOTIMPL; }
    STDMETHODIMP SetMenu(HMENU, HOLEMENU, HWND) override { return S_OK; }
    STDMETHODIMP RemoveMenus(HMENU) override { return E_NOTIMPL; }
    STDMETHODIMP SetStatusText(LPCOLESTR) override { return S_OK; }
    STDMETHODIMP EnableModeless(BOOL) override { return S_OK; }
    STDMETHODIMP TranslateAccelerator(MSG*, WORD) override { return S_FALSE; }

private:
    HWND m_window;
    IOleContainer* m_container;
    ComPtr<IFont> m_font;
};

/// The place of one control: its sites and its ambient properties (run mode, the form's font).
class Site final : public Owned<IOleClientSite, IOleControlSite, IOleInPlaceSite, IDispatch> {
public:
    Site(Frame& frame, HWND window, RECT const& position)
        : m_frame(frame), m_window(window), m_position(position), m_extender(window)
    {}

    RECT const& position() const noexcept { return m_position; }

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;

    // IOleClientSite
    STDMETHODIMP SaveObject() override { return S_OK; }
    STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
    STDMETHODIMP GetContainer(IOleContainer** container) override;
    STDMETHODIMP ShowObject() override { return S_OK; }
    STDMETHODIMP OnShowWindow(BOOL) override { return S_OK; }
    STDMETHODIMP RequestNewObjectLayout() override { return E_NOTIMPL; }

    // IOleControlSite
    STDMETHODIMP OnControlInfoChanged() override { return S_OK; }
    STDMETHODIMP LockInPlaceActive(BOOL) override { return S_OK; }
    STDMETHODIMP GetExtendedControl(IDispatch** extender) override;
    STDMETHODIMP TransformCoords(POINTL*, POINTF*, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP TranslateAccelerator(MSG*, DWORD) override { return S_FALSE; }
    STDMETHODIMP OnFocus(BOOL) override { return S_OK; }
    STDMETHODIMP ShowPropertyFrame() override { return E_NOTIMPL; }

    // IOleInPlaceSite
    STDMETHODIMP GetWindow(HWND* window) override;
    STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP CanInPlaceActivate() override { return S_OK; }
    STDMETHODIMP OnInPlaceActivate() override { return S_OK; }
    STDMETHODIMP OnUIActivate() override { return S_OK; }
    STDMETHODIMP GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, RECT* position,
                                  RECT* clip, OLEINPLACEFRAMEINFO* info) override;
    STDMETHODIMP Scroll(SIZE) override { return E_NOTIMPL; }
    STDMETHODIMP OnUIDeactivate(BOOL) override { return S_OK; }
    STDMETHODIMP OnInPlaceDeactivate() override { return S_OK; }
    STDMETHODIMP DiscardUndoState() override { return E_NOTIMPL; }
    STDMETHODIMP DeactivateAndUndo() override { return E_NOTIMPL; }
    STDMETHODIMP OnPosRectChange(RECT const*) override { return S_OK; }

    // IDispatch
    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return DISP_E_UNKNOWNNAME; }
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                        UINT*) override;

private:
    Frame& m_frame;
    HWND m_window;
    RECT m_position;
    Extender m_extender;
};

/// Listens to a control's events, as a form does, and does nothing about them.
class Listener final : public LateBound {
public:
    explicit Listener(IUnknown& control);
    ~Listener();
    Listener(Listener const&) = delete;
    Listener& operator=(Listener const&) = delete;

    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return DISP_E_UNKNOWNNAME; }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override
    {
        return S_OK;
    }

private:
    ComPtr<IConnectionPoint> m_point;
    DWORD m_cookie = 0;
};

/// The saved form of a button: a caption and a few properties that are not at their defaults.
class SavedButton final : public Owned<IPropertyBag> {
public:
    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP Read(LPCOLESTR name, VARIANT* value, IErrorLog*) override;
    STDMETHODIMP Write(LPCOLESTR, VARIANT*) override { return E_NOTIMPL; }
};

constexpr wchar_t kCaption[] = L"&Save changes";

/// A control that is created, loaded and activated in its site, and closed at its end.
class Hosted {
public:
    Hosted(IClassFactory& factory, IPropertyBag& saved, Frame& frame, HWND window, RECT const& position);
    ~Hosted();
    Hosted(Hosted const&) = delete;
    Hosted& operator=(Hosted const&) = delete;

    template <class T> ComPtr<T> as() const { return m_object.as<T>(); }

private:
    Site m_site;
    ComPtr<IOleObject> m_object;
};

} // namespace quillet::bench

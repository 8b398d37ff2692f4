// A small ActiveX control for tests of the form host: it writes down what the host does with it.
#pragma once

#include "base/Counted.h"
#include "base/Handles.h"
#include "gallery/form/PropertyBag.h"
#include "gallery/host/LateBoundObject.h"

#include <ocidl.h>
#include <olectl.h>
#include <windows.h>

#include <oleidl.h>

#include <string>
#include <vector>

namespace quillet::gallery::test {

/// The source interface that a fake control says it has.
inline constexpr IID kFakeEvents = {
    0x5B6D3C11, 0x41F2, 0x4C7E, {0x9A, 0x01, 0x77, 0x10, 0x2E, 0x31, 0x8D, 0x04}};
/// An interface that only a fake control answers.
inline constexpr IID kFakeFace = {
    0x5B6D3C12, 0x41F2, 0x4C7E, {0x9A, 0x01, 0x77, 0x10, 0x2E, 0x31, 0x8D, 0x04}};

constexpr DISPID kCaptionId = 7;

/// How a fake control behaves.
struct FakeTraits {
    DWORD status = OLEMISC_SETCLIENTSITEFIRST | OLEMISC_INSIDEOUT | OLEMISC_ACTIVATEWHENVISIBLE;
    wchar_t accessKey = 0;      ///< in its accelerator table, both cases
    DWORD infoFlags = 0;        ///< CTRLINFO_…
    HRESULT loadResult = S_OK;  ///< what IPersistPropertyBag::Load answers
    bool hasClickMethod = true; ///< answers DISPID_DOCLICK
    WPARAM usedKey = 0;         ///< a key that TranslateAccelerator uses up
};

class FakeControl final
    : public LateBoundObject<IOleObject, IOleInPlaceObject, IOleInPlaceActiveObject, IOleControl,
                             IPersistPropertyBag, IPersistStreamInit, IConnectionPointContainer,
                             IConnectionPoint, IProvideClassInfo2> {
public:
    explicit FakeControl(FakeTraits traits = {});
    ~FakeControl() override;

    std::vector<std::string> calls; ///< what the host did, in order
    std::vector<DISPID> ambientChanges;
    ComPtr<PropertyBag> loaded; ///< the values of the bag that it was asked about
    Bstr caption;
    SIZEL extent{};
    RECT place{};
    int clicks = 0;
    int mnemonics = 0;
    UINT mnemonicMessage = 0;

    /// Its identity, as a class factory would hand it out.
    ComPtr<IUnknown> identity() noexcept { return static_cast<IDispatch*>(this); }
    IOleClientSite* site() const noexcept { return m_site.get(); }
    HWND hwnd() const noexcept { return m_window.get(); }
    /// Reads one ambient property of its site.
    Variant ambient(DISPID id) const;
    /// Its extender, as the site hands it out.
    ComPtr<IDispatch> extender() const;
    /// Raises an event at whoever listens.
    void raise(DISPID id);
    bool hasListener() const noexcept { return static_cast<bool>(m_listener); }

    // IOleObject
    HRESULT STDMETHODCALLTYPE SetClientSite(IOleClientSite* site) override;
    HRESULT STDMETHODCALLTYPE GetClientSite(IOleClientSite** out) override
    {
        *out = m_site.copy();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE SetHostNames(LPCOLESTR, LPCOLESTR) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE Close(DWORD) override
    {
        m_window.reset();
        return noted("Close");
    }
    HRESULT STDMETHODCALLTYPE SetMoniker(DWORD, IMoniker*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE InitFromData(IDataObject*, BOOL, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetClipboardData(DWORD, IDataObject**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE DoVerb(LONG verb, MSG*, IOleClientSite*, LONG, HWND parent,
                                     RECT const* rect) override;
    HRESULT STDMETHODCALLTYPE EnumVerbs(IEnumOLEVERB**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Update() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE IsUpToDate() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetUserClassID(CLSID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetUserType(DWORD, LPOLESTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetExtent(DWORD, SIZEL* size) override
    {
        extent = *size;
        return noted("SetExtent");
    }
    HRESULT STDMETHODCALLTYPE GetExtent(DWORD, SIZEL*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Advise(IAdviseSink*, DWORD* cookie) override
    {
        *cookie = 11;
        return noted("Advise");
    }
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD) override;
    HRESULT STDMETHODCALLTYPE EnumAdvise(IEnumSTATDATA**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetMiscStatus(DWORD, DWORD* out) override
    {
        *out = m_traits.status;
        return noted("GetMiscStatus");
    }
    HRESULT STDMETHODCALLTYPE SetColorScheme(LOGPALETTE*) override { return E_NOTIMPL; }

    // in-place object and active object
    HRESULT STDMETHODCALLTYPE GetWindow(HWND* out) override
    {
        *out = m_window.get();
        return m_window ? S_OK : E_FAIL;
    }
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE InPlaceDeactivate() override
    {
        m_window.reset();
        return noted("InPlaceDeactivate");
    }
    HRESULT STDMETHODCALLTYPE UIDeactivate() override { return noted("UIDeactivate"); }
    HRESULT STDMETHODCALLTYPE SetObjectRects(RECT const* rect, RECT const*) override
    {
        place = *rect;
        return noted("SetObjectRects");
    }
    HRESULT STDMETHODCALLTYPE ReactivateAndUndo() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG* message) override;
    HRESULT STDMETHODCALLTYPE OnFrameWindowActivate(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnDocWindowActivate(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE ResizeBorder(RECT const*, IOleInPlaceUIWindow*, BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE EnableModeless(BOOL) override { return S_OK; }

    // IOleControl
    HRESULT STDMETHODCALLTYPE GetControlInfo(CONTROLINFO* info) override;
    HRESULT STDMETHODCALLTYPE OnMnemonic(MSG* message) override
    {
        ++mnemonics;
        mnemonicMessage = message->message;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE OnAmbientPropertyChange(DISPID id) override
    {
        ambientChanges.push_back(id);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE FreezeEvents(BOOL) override { return S_OK; }

    // persistence
    HRESULT STDMETHODCALLTYPE GetClassID(CLSID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE InitNew() override { return noted("InitNew"); }
    HRESULT STDMETHODCALLTYPE Load(IPropertyBag* bag, IErrorLog*) override;
    HRESULT STDMETHODCALLTYPE Save(IPropertyBag* bag, BOOL, BOOL) override;
    HRESULT STDMETHODCALLTYPE IsDirty() override { return S_FALSE; }
    HRESULT STDMETHODCALLTYPE Load(IStream*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Save(IStream*, BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetSizeMax(ULARGE_INTEGER*) override { return E_NOTIMPL; }

    // events: one connection point, which is the control itself
    HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID iid, IConnectionPoint** out) override;
    HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetConnectionPointContainer(IConnectionPointContainer**) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Advise(IUnknown* sink, DWORD* cookie) override;
    HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetGUID(DWORD kind, GUID* out) override;

protected:
    DISPID idOf(std::wstring_view name) override;
    Variant invoke(DISPID id, WORD flags, Arguments const& arguments) override;
    IUnknown* inheritedInterface(REFIID iid) noexcept override;

private:
    static LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    HRESULT noted(std::string call)
    {
        calls.push_back(std::move(call));
        return S_OK;
    }
    void makeWindow(HWND parent, RECT const& rect);
    void gotFocus();

    FakeTraits m_traits;
    ComPtr<IOleClientSite> m_site;
    ComPtr<IDispatch> m_listener;
    UniqueAccelerators m_accelerators;
    UniqueWindow m_window;
};

} // namespace quillet::gallery::test

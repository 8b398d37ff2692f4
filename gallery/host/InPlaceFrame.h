// The frame that in-place active controls tell of their activation.
#pragma once

#include "base/ComPtr.h"
#include "base/Counted.h"

#include <windows.h>

#include <oleidl.h>

namespace quillet::gallery {

class Form;

/// Has no room for tools or menus; remembers the active object, which sees key messages first.
class InPlaceFrame final : public Counted<IOleInPlaceFrame> {
public:
    explicit InPlaceFrame(Form& form) noexcept : m_form(&form) {}

    void disconnect() noexcept
    {
        m_form = nullptr;
        m_active.reset();
    }
    /// Null when no control has named one.
    IOleInPlaceActiveObject* active() const noexcept { return m_active.get(); }

    HRESULT STDMETHODCALLTYPE GetWindow(HWND* out) override;
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetBorder(RECT*) override { return INPLACE_E_NOTOOLSPACE; }
    HRESULT STDMETHODCALLTYPE RequestBorderSpace(BORDERWIDTHS const*) override
    {
        return INPLACE_E_NOTOOLSPACE;
    }
    HRESULT STDMETHODCALLTYPE SetBorderSpace(BORDERWIDTHS const* widths) override
    {
        return widths ? OLE_E_INVALIDRECT : S_OK;
    }
    HRESULT STDMETHODCALLTYPE SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR) override
    {
        m_active = object;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE InsertMenus(HMENU, OLEMENUGROUPWIDTHS*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetMenu(HMENU, HOLEMENU, HWND) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE RemoveMenus(HMENU) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetStatusText(LPCOLESTR) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE EnableModeless(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG*, WORD) override { return S_FALSE; }

protected:
    IUnknown* inheritedInterface(REFIID iid) noexcept override
    {
        if (iid == __uuidof(IOleWindow) || iid == __uuidof(IOleInPlaceUIWindow))
            return static_cast<IOleInPlaceFrame*>(this);
        return nullptr;
    }

private:
    Form* m_form;
    ComPtr<IOleInPlaceActiveObject> m_active;
};

} // namespace quillet::gallery

// One control in a site, driven through the steps that a container takes.
#pragma once

#include "base/ComPtr.h"
#include "kit/FakeForm.h"
#include "kit/FakeSite.h"
#include "kit/Library.h"

#include <ocidl.h>
#include <windows.h>

#include <oleidl.h>

#include <string>

namespace quillet::kit {

/// Owns a control and its site. Each step may be left out or taken out of order.
class Hosted {
public:
    Hosted(Library const& library, REFCLSID classId, FakeForm& form, RECT const& position,
           std::wstring const& name = L"Button1");
    ~Hosted() { remove(); }
    Hosted(Hosted const&) = delete;
    Hosted& operator=(Hosted const&) = delete;

    FakeForm& form() noexcept { return m_form; }
    FakeSite& site() noexcept { return *m_site.get(); }
    IUnknown* object() const noexcept { return m_object.get(); }
    template <class T> ComPtr<T> as() const { return query<T>(m_object.get()); }

    HRESULT setSite();
    HRESULT initNew();
    HRESULT load(IPropertyBag& bag);
    HRESULT save(IPropertyBag& bag, bool clearDirty = true, bool allProperties = false);
    HRESULT setExtent();
    HRESULT doVerb(LONG verb, MSG* message = nullptr);
    HRESULT activate() { return doVerb(OLEIVERB_INPLACEACTIVATE); }
    /// Site, init-new, extent, activation and the first painting.
    void start();
    /// Site, load, extent, activation and the first painting.
    void start(IPropertyBag& bag);

    HWND window() const;

    /// Closes, takes the site away and releases. Once is enough.
    void remove();
    /// Gives up the last reference without a word.
    void release();

private:
    FakeForm& m_form;
    ComPtr<FakeSite> m_site;
    ComPtr<IUnknown> m_object;
};

/// Pixels into hundredths of a millimetre at the screen's resolution.
SIZEL himetricOf(SIZE pixels);

} // namespace quillet::kit

// One control in a site, driven through the steps that a container takes.
#pragma once

#include "base/ComPtr.h"
#include "kit/Canvas.h"
#include "kit/FakeForm.h"
#include "kit/FakeSite.h"
#include "kit/Library.h"
#include "kit/Memory.h"
#include "kit/NotCopied.h"

#include <ocidl.h>
#include <windows.h>

#include <oleidl.h>

#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace quillet::kit {

/// Calls a method of one of an object's interfaces; E_NOINTERFACE where the object has none of that name, or
/// is gone. Where the method is inherited, the interface is named.
template <class Named = void, class Declaring, class... Parameters>
HRESULT ask(IUnknown* object, HRESULT (STDMETHODCALLTYPE Declaring::*method)(Parameters...),
            std::type_identity_t<Parameters>... arguments)
{
    auto const face = query<std::conditional_t<std::is_void_v<Named>, Declaring, Named>>(object);
    return face ? (face.get()->*method)(arguments...) : E_NOINTERFACE;
}

/// Owns a control and its site. Each step may be left out or taken out of order.
class Hosted : NotCopied {
public:
    Hosted(Library const& library, REFCLSID classId, FakeForm& form, RECT const& position,
           std::wstring const& name = L"Button1");
    ~Hosted() { remove(); }

    FakeForm& form() noexcept { return m_form; }
    FakeSite& site() noexcept { return *m_site.get(); }
    IUnknown* object() const noexcept { return m_object.get(); }
    template <class T> ComPtr<T> as() const { return query<T>(m_object.get()); }
    template <class Named = void, class Declaring, class... Parameters>
    HRESULT ask(HRESULT (STDMETHODCALLTYPE Declaring::*method)(Parameters...),
                std::type_identity_t<Parameters>... arguments) const
    {
        return kit::ask<Named>(object(), method, arguments...);
    }

    HRESULT setSite();
    HRESULT initNew() { return ask(&IPersistStreamInit::InitNew); }
    HRESULT load(IPropertyBag& bag) { return ask(&IPersistPropertyBag::Load, &bag, nullptr); }
    HRESULT save(IPropertyBag& bag, bool clearDirty = true, bool allProperties = false)
    {
        return ask(&IPersistPropertyBag::Save, &bag, clearDirty, allProperties);
    }
    /// By the stream form.
    HRESULT load(Bytes const& bytes);
    Bytes saved(BOOL clearDirty = FALSE);
    HRESULT setExtent();
    HRESULT doVerb(LONG verb, MSG* message = nullptr);
    HRESULT activate() { return doVerb(OLEIVERB_INPLACEACTIVATE); }
    /// Site, init-new, extent, activation and the first painting.
    void start();
    /// Site, load, extent, activation and the first painting.
    void start(IPropertyBag& bag);

    /// Draws the control as a view of its own, as large as the picture.
    void draw(Canvas& on) const;

    HWND window() const;
    SIZE size() const; ///< of the window
    /// The container gives the window another place.
    void place(RECT const& position);
    /// The form runs or is designed from now on, and tells of it.
    void setUserMode(bool running);
    /// The font of the form, which nobody is told of.
    void offerFont(IFont* font);

    /// Closes, takes the site away and releases. Once is enough.
    void remove();
    /// Gives up the last reference without a word.
    void release();

private:
    FakeForm& m_form;
    ComPtr<FakeSite> m_site;
    ComPtr<IUnknown> m_object;
};

/// What a command button of some hosts' own is known by.
inline constexpr IID kHostButton = {
    0x33AD4EF1, 0x6699, 0x11CF, {0xB7, 0x0C, 0x00, 0xAA, 0x00, 0x60, 0xD3, 0x93}};

/// The keys that a control tells its container of, as fVirt and key.
using AccessKey = std::pair<int, wchar_t>;
std::vector<AccessKey> accessKeys(IUnknown* control);
/// Tells a control that its access key was pressed.
HRESULT pressAccessKey(IUnknown* control, wchar_t key);

/// Pixels into hundredths of a millimetre at the screen's resolution.
SIZEL himetricOf(SIZE pixels);

} // namespace quillet::kit

// A property page: what the frame that shows it calls, and the changes not yet applied.
#pragma once

#include "base/ComCall.h"
#include "base/ComPtr.h"
#include "base/Counted.h"
#include "base/RunTimeError.h"
#include "pages/EditedObjects.h"
#include "pages/PageWindow.h"

#include <ocidl.h>
#include <windows.h>

#include <memory>
#include <string>

namespace quillet {

/// A page derives from this, says which properties it edits and fills its window.
class PropertyPage : public Counted<IPropertyPage2>, public PageCommands {
public:
    // IPropertyPage
    STDMETHODIMP SetPageSite(IPropertyPageSite* site) override;
    STDMETHODIMP Activate(HWND parent, LPCRECT place, WINBOOL modal) override;
    STDMETHODIMP Deactivate() override;
    STDMETHODIMP GetPageInfo(PROPPAGEINFO* info) override;
    STDMETHODIMP SetObjects(ULONG count, IUnknown** objects) override;
    STDMETHODIMP Show(UINT command) override;
    STDMETHODIMP Move(LPCRECT place) override;
    STDMETHODIMP IsPageDirty() override;
    STDMETHODIMP Apply() override;
    STDMETHODIMP Help(LPCOLESTR folder) override;
    STDMETHODIMP TranslateAccelerator(MSG* message) override;
    // IPropertyPage2
    STDMETHODIMP EditProperty(DISPID id) override;

protected:
    explicit PropertyPage(wchar_t const* title) noexcept : m_title(title) {}

    IUnknown* inheritedInterface(REFIID iid) noexcept override;

    /// Whether the page edits the property.
    virtual bool edits(DescribedProperty const& property) const = 0;
    /// Places the controls and shows the values in them.
    virtual void fill(PageWindow& window) = 0;
    /// Takes the user to a property that the page edits.
    virtual void goTo(size_t property) = 0;
    void onDraw(DRAWITEMSTRUCT const&) override {}

    PageWindow& window() const { return *m_window; }
    std::vector<DescribedProperty> const& properties() const noexcept { return m_properties; }
    /// What the page shows: the change not yet applied, or the object's value.
    Variant shown(size_t property) const;
    /// Keeps a change until it is applied, and tells the frame that there is one.
    void change(size_t property, Variant value);

private:
    void requireWindow() const;
    void apply();

    wchar_t const* m_title;
    ComPtr<IPropertyPageSite> m_site;
    EditedObjects m_objects;
    std::vector<DescribedProperty> m_properties;
    std::vector<Variant> m_changes; ///< of each property: the value not applied yet, else nothing
    std::unique_ptr<PageWindow> m_window;
};

/// Makes a page and hands out one of its interfaces. A page cannot be part of another object.
template <class Page> HRESULT createPage(IUnknown* outer, REFIID iid, void** object) noexcept
{
    return comCall([&] {
        deref(object) = nullptr;
        if (outer)
            throw RunTimeError(CLASS_E_NOAGGREGATION);
        check(makeCounted<Page>()->QueryInterface(iid, object));
    });
}

} // namespace quillet

// What property browsers and designers ask: names of values, headings, property pages.
#pragma once

#include "browse/CategorizeProperties.h"
#include "browse/DescribedProperties.h"
#include "surface/faces/Face.h"

#include <ocidl.h>
#include <windows.h>

#include <optional>
#include <vector>

namespace quillet {

/// IPerPropertyBrowsing, ISpecifyPropertyPages and ICategorizeProperties. All answers come from the class's
/// own type description, so a new property needs nothing here.
class Browsing final : public Face<IPerPropertyBrowsing, ISpecifyPropertyPages, ICategorizeProperties> {
public:
    using Face::Face;

    // IPerPropertyBrowsing
    STDMETHODIMP GetDisplayString(DISPID id, BSTR* text) override;
    STDMETHODIMP MapPropertyToPage(DISPID id, CLSID* page) override;
    STDMETHODIMP GetPredefinedStrings(DISPID id, CALPOLESTR* texts, CADWORD* cookies) override;
    STDMETHODIMP GetPredefinedValue(DISPID id, DWORD cookie, VARIANT* value) override;
    // ISpecifyPropertyPages
    STDMETHODIMP GetPages(CAUUID* pages) override;
    // ICategorizeProperties
    STDMETHODIMP MapPropertyToCategory(DISPID id, PROPCAT* category) override;
    STDMETHODIMP GetCategoryName(PROPCAT category, LCID locale, BSTR* name) override;

    /// Shows the property pages: the container's frame for them, or one of the system's.
    void showPages(HWND parent);

private:
    std::vector<DescribedProperty> properties();
    std::optional<DescribedProperty> find(DISPID id);
    std::vector<CLSID> pages();
};

} // namespace quillet

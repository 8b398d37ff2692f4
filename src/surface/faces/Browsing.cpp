// What property browsers and designers ask: names of values, headings, property pages.
#include "surface/faces/Browsing.h"

#include "base/Bstr.h"
#include "base/LateBound.h"
#include "base/RunTimeError.h"
#include "base/TaskMemory.h"
#include "base/Variant.h"
#include "browse/Categories.h"
#include "browse/PageIds.h"
#include "surface/Surface.h"

#include <olectl.h>

#include <algorithm>

namespace quillet {

namespace {

/// Which page edits properties of a kind.
struct SpecialPage {
    ValueKind kind;
    CLSID const& page;
};
constexpr SpecialPage kSpecialPages[] = {
    {ValueKind::Colour, kColoursPageClass},
    {ValueKind::Font, kFontsPageClass},
    {ValueKind::Picture, kPicturesPageClass},
};

} // namespace

std::vector<DescribedProperty> Browsing::properties()
{
    auto const own = query<IDispatch>(m_surface.inner());
    ComPtr<ITypeInfo> description;
    check(deref(own.get()).GetTypeInfo(0, LOCALE_NEUTRAL, description.put()));
    return describedProperties(*description.get());
}

std::optional<DescribedProperty> Browsing::find(DISPID id)
{
    for (DescribedProperty& property : properties())
        if (property.id == id)
            return std::move(property);
    return std::nullopt;
}

HRESULT Browsing::GetDisplayString(DISPID id, BSTR* text)
{
    return m_surface.call([&] {
        deref(text) = nullptr;
        auto const property = find(id);
        if (!property || property->choices.empty())
            return S_FALSE;
        long const value = propertyById(query<IDispatch>(m_surface.inner()).get(), id).toLong();
        for (Choice const& choice : property->choices)
            if (choice.value == value) {
                *text = Bstr(choice.name).detach();
                return S_OK;
            }
        return S_FALSE;
    });
}

HRESULT Browsing::MapPropertyToPage(DISPID id, CLSID* page)
{
    return m_surface.call([&] {
        deref(page) = CLSID_NULL;
        // Only these kinds have a page of their own: a browser edits plain values itself.
        auto const property = find(id);
        for (SpecialPage const& row : kSpecialPages)
            if (property && property->kind == row.kind) {
                *page = row.page;
                return S_OK;
            }
        return PERPROP_E_NOPAGEAVAILABLE;
    });
}

HRESULT Browsing::GetPredefinedStrings(DISPID id, CALPOLESTR* texts, CADWORD* cookies)
{
    return m_surface.call([&] {
        deref(texts) = {};
        deref(cookies) = {};
        auto const property = find(id);
        if (!property || property->choices.empty())
            return S_FALSE;
        std::vector<Choice> const& choices = property->choices;
        TaskArray<LPOLESTR> names(choices.size());
        TaskArray<DWORD> values(choices.size());
        for (size_t i = 0; i < choices.size(); ++i) {
            names[i] = taskString(choices[i].name.c_str());
            values[i] = static_cast<DWORD>(choices[i].value);
        }
        auto const count = static_cast<ULONG>(choices.size());
        *texts = {count, names.detach()};
        *cookies = {count, values.detach()};
        return S_OK;
    });
}

HRESULT Browsing::GetPredefinedValue(DISPID id, DWORD cookie, VARIANT* value)
{
    return m_surface.call([&] {
        deref(value).vt = VT_EMPTY;
        auto const property = find(id);
        auto const wanted = static_cast<long>(cookie);
        if (!property || std::ranges::none_of(property->choices,
                                              [wanted](Choice const& each) { return each.value == wanted; }))
            throw RunTimeError(E_INVALIDARG);
        *value = Variant::ofLong(wanted).detach();
    });
}

std::vector<CLSID> Browsing::pages()
{
    std::vector<CLSID> found = {kGeneralPageClass};
    auto const described = properties();
    for (SpecialPage const& row : kSpecialPages)
        if (std::ranges::any_of(described, [&](auto const& each) { return each.kind == row.kind; }))
            found.push_back(row.page);
    return found;
}

HRESULT Browsing::GetPages(CAUUID* pages)
{
    return m_surface.call([&] {
        deref(pages) = {};
        auto const found = this->pages();
        TaskArray<GUID> handed(found.size());
        std::ranges::copy(found, &handed[0]);
        *pages = {static_cast<ULONG>(found.size()), handed.detach()};
    });
}

HRESULT Browsing::MapPropertyToCategory(DISPID id, PROPCAT* category)
{
    return m_surface.call([&] {
        deref(category) = 0;
        auto const property = find(id);
        if (!property)
            throw RunTimeError(E_INVALIDARG);
        *category = static_cast<PROPCAT>(categoryOf(property->name));
    });
}

HRESULT Browsing::GetCategoryName(PROPCAT category, LCID, BSTR* name)
{
    return m_surface.call([&] {
        deref(name) = nullptr;
        wchar_t const* const known = nameOf(static_cast<Category>(category));
        if (!known)
            return S_FALSE;
        *name = Bstr(known).detach();
        return S_OK;
    });
}

void Browsing::showPages(HWND parent)
{
    if (m_surface.container().showsPropertyFrame())
        return;
    auto found = pages();
    IUnknown* object = m_surface.outer();
    check(::OleCreatePropertyFrame(parent, 0, 0, m_surface.controlClass().name, 1, &object,
                                   static_cast<ULONG>(found.size()), found.data(), LOCALE_USER_DEFAULT, 0,
                                   nullptr));
}

} // namespace quillet

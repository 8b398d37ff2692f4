// A property bag in memory: what a form says of a control, and what a control saves.
#pragma once

#include "base/Counted.h"
#include "base/Variant.h"

#include <ocidl.h>
#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

namespace quillet::gallery {

class PropertyBag final : public Counted<IPropertyBag> {
public:
    struct Entry {
        std::wstring name;
        Variant value;
    };

    /// Adds a value or replaces the one of that name.
    void set(std::wstring_view name, Variant value);
    /// The value of that name; null when there is none.
    Variant const* find(std::wstring_view name) const noexcept;
    std::vector<Entry> const& entries() const noexcept { return m_entries; }

    /// Answers in the type that the caller's variant has on entry, as it is if that is empty;
    /// E_INVALIDARG for a name that is not there.
    HRESULT STDMETHODCALLTYPE Read(LPCOLESTR name, VARIANT* value, IErrorLog* log) override;
    HRESULT STDMETHODCALLTYPE Write(LPCOLESTR name, VARIANT* value) override;

private:
    std::vector<Entry> m_entries;
};

} // namespace quillet::gallery

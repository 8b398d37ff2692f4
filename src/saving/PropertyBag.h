// Saved properties by name, whatever carries them.
#pragma once

#include "base/Variant.h"

#include <ocidl.h>
#include <windows.h>

namespace quillet {

/// Reads and writes named values; object values have VT_UNKNOWN.
class PropertyBag {
public:
    virtual ~PropertyBag() = default;

    /// The value saved under the name, in whatever type it came though one is asked for; empty for none.
    Variant readProperty(wchar_t const* name, VARTYPE type) { return read(name, type); }
    /// Saves the value unless it equals the fallback in type, too, which no value does where that is empty.
    /// Whether it was saved.
    bool writeProperty(wchar_t const* name, Variant const& value, Variant const& fallback);

protected:
    PropertyBag() = default;
    PropertyBag(PropertyBag const&) = default;
    PropertyBag& operator=(PropertyBag const&) = default;

private:
    virtual Variant read(wchar_t const* name, VARTYPE type) = 0;
    virtual void write(wchar_t const* name, Variant value) = 0;
};

/// A container's own property bag.
class HostPropertyBag final : public PropertyBag {
public:
    HostPropertyBag(IPropertyBag& bag, IErrorLog* log) noexcept : m_bag(&bag), m_log(log) {}

private:
    Variant read(wchar_t const* name, VARTYPE type) override;
    void write(wchar_t const* name, Variant value) override;

    ComPtr<IPropertyBag> m_bag;
    ComPtr<IErrorLog> m_log;
};

} // namespace quillet

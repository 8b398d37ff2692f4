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
    virtual Variant readProperty(wchar_t const* name, VARTYPE type) = 0;
    virtual void writeProperty(wchar_t const* name, Variant value) = 0;

protected:
    PropertyBag() = default;
    PropertyBag(PropertyBag const&) = default;
    PropertyBag& operator=(PropertyBag const&) = default;
};

/// A container's own property bag.
class HostPropertyBag final : public PropertyBag {
public:
    HostPropertyBag(IPropertyBag& bag, IErrorLog* log) noexcept : m_bag(&bag), m_log(log) {}

    Variant readProperty(wchar_t const* name, VARTYPE type) override;
    void writeProperty(wchar_t const* name, Variant value) override;

private:
    ComPtr<IPropertyBag> m_bag;
    ComPtr<IErrorLog> m_log;
};

} // namespace quillet

// The controls that a property page edits together.
#pragma once

#include "base/ComPtr.h"
#include "base/Variant.h"
#include "browse/DescribedProperties.h"

#include <oaidl.h>
#include <windows.h>

#include <string>
#include <vector>

namespace quillet {

/// Controls of one class or of several; a property is known by its name, as identifiers differ from class to
/// class.
class EditedObjects {
public:
    /// Takes references of its own. TypeMismatch for an object that cannot be edited by name; the earlier
    /// objects are kept then.
    void set(IUnknown* const* objects, ULONG count);
    void clear() noexcept { m_objects.clear(); }
    bool empty() const noexcept { return m_objects.empty(); }

    /// The properties that can be changed and that all objects have, as the first one describes them.
    std::vector<DescribedProperty> properties() const;
    /// The help file's topic about the first object's class; the manual's for no object.
    DWORD helpContext() const noexcept;
    /// The first object's value. Throws the object's error.
    Variant get(std::wstring const& property) const;
    /// Assigns to every object; objects are assigned by reference. Stops at the first that refuses, and
    /// answers its reason; empty when all took it.
    std::wstring put(std::wstring const& property, Variant const& value) const;

private:
    /// Of the first object.
    ComPtr<ITypeInfo> description() const;

    std::vector<ComPtr<IDispatch>> m_objects;
};

} // namespace quillet

// Values of every type that somebody may hand out where another was asked for, strange objects among them.
#pragma once

#include "base/ComPtr.h"
#include "base/Variant.h"

#include <windows.h>

#include <unknwn.h>

#include <string>
#include <vector>

namespace quillet::hostile {

struct NamedValue {
    std::string name;
    Variant value;
};

/// A value that is kept elsewhere.
Variant referring(VARTYPE type, void* target);

/// Each automation type that has anything to do with a property, whole, empty and extreme.
std::vector<NamedValue> strangeValues();

/// A font whose every call answers that: S_OK without anything in the out-parameters, or a failure.
ComPtr<IUnknown> failingFont(HRESULT answer);
/// A picture of the same kind; it has no dispatch interface.
ComPtr<IUnknown> failingPicture(HRESULT answer);
/// An object with no interface but its own identity.
ComPtr<IUnknown> plainObject();

} // namespace quillet::hostile

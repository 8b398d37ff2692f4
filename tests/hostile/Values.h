// Values of every type that somebody may hand out where another was asked for.
#pragma once

#include "base/Variant.h"

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

} // namespace quillet::hostile

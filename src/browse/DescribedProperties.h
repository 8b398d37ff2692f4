// What a class's own type description says of its properties: enough to show and edit any of them.
#pragma once

#include <oaidl.h>
#include <windows.h>

#include <string>
#include <vector>

namespace quillet {

/// How a property is shown and edited.
enum class ValueKind { Text, Number, Flag, Choice, Colour, Font, Picture, Other };

/// One of a property's named values.
struct Choice {
    long value;
    std::wstring name; ///< "1 - Fixed"
};

struct DescribedProperty {
    DISPID id;
    std::wstring name;
    ValueKind kind;
    bool writable;
    std::vector<Choice> choices; ///< of a Choice, in their declared order
};

/// All properties, in their declared order. The description is that of a dispatch interface. Throws the
/// description's own failure.
std::vector<DescribedProperty> describedProperties(ITypeInfo& description);

} // namespace quillet

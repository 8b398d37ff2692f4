// The saved properties of both classes as the tests expect them, in the order of reading and writing.
#pragma once

#include "ImageButton.h"

#include <string>
#include <vector>

namespace quillet::image {

struct SavedRow {
    wchar_t const* name;
    VARTYPE type;         ///< in a bag; VT_UNKNOWN stands for an object
    Variant imageDefault; ///< empty for objects
    Variant toolDefault;
    Variant other; ///< a value that is neither default; empty for objects and flags

    Variant const& defaultOf(Kind const& kind) const { return kind.isTool ? toolDefault : imageDefault; }
    Variant otherThanDefault(Kind const& kind) const
    {
        return type == VT_BOOL ? Variant::ofBool(!defaultOf(kind).toBool()) : other;
    }
};

std::vector<SavedRow> const& savedRows();
std::vector<std::wstring> savedNames();

/// A value as the member gives it, as text: colours are numbers.
std::string valueOf(ImageButton const& button, wchar_t const* name);
std::string textOf(Variant const& value);

/// Every saved property and ToolTipText as "Name = value": fonts and pictures by what can be told of them.
std::vector<std::string> stateOf(ImageButton const& button);

} // namespace quillet::image

// What the registry holds about a class: one row for each key or value.
#pragma once

#include "pages/PageClass.h"
#include "shell/ClassTable.h"

#include <string>
#include <string_view>
#include <vector>

namespace quillet {

/// One value, below the key of all classes.
struct RegistryRow {
    std::wstring key;
    std::wstring name; ///< empty for the key's own value
    std::wstring text;
    bool hasValue = true; ///< false for a key that says something by being there
};

std::vector<RegistryRow> registryRows(ClassRow const& row, std::wstring const& componentPath);
std::vector<RegistryRow> registryRows(PageClass const& page, std::wstring const& componentPath);

/// "CLSID\{…}": everything below it is the class's own.
std::wstring classKey(CLSID const& classId);
/// "Quillet.qvFlatCommand", for whatever version is the current one.
std::wstring currentProgId(ClassRow const& row);
/// "Quillet.qvFlatCommand.1"
std::wstring versionedProgId(ClassRow const& row);

std::wstring guidText(GUID const& id);

} // namespace quillet

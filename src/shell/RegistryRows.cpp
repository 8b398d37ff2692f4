// What the registry holds about a class: one row for each key or value.
#include "shell/RegistryRows.h"

#include "base/DecimalText.h"
#include "typelib/Guids.h"

#include <objbase.h>

#include <iterator>

namespace quillet {

namespace {

/// What a container may count on. Safe for scripting is not among them and must never be: WindowProc takes
/// raw message parameters.
constexpr wchar_t const* kCategories[] = {
    L"{40FC6ED4-2438-11CF-A3DB-080036F12502}", // CATID_Control
    L"{40FC6ED5-2438-11CF-A3DB-080036F12502}", // CATID_Programmable
    L"{0DE86A52-2BAA-11CF-A229-00AA003D7352}", // CATID_PersistsToStorage
    L"{0DE86A54-2BAA-11CF-A229-00AA003D7352}", // CATID_PersistsToStreamInit
    L"{0DE86A57-2BAA-11CF-A229-00AA003D7352}", // CATID_PersistsToPropertyBag
};

RegistryRow keyOnly(std::wstring key) { return {std::move(key), {}, {}, false}; }

std::vector<RegistryRow> serverRows(std::wstring const& key, wchar_t const* description,
                                    std::wstring const& componentPath)
{
    return {{key, L"", description},
            {key + L"\\InprocServer32", L"", componentPath},
            {key + L"\\InprocServer32", L"ThreadingModel", L"Apartment"}};
}

void appendProgIds(std::vector<RegistryRow>& rows, ClassRow const& row, std::wstring const& classId)
{
    std::wstring const current = currentProgId(row);
    std::wstring const versioned = versionedProgId(row);
    rows.push_back({versioned, L"", row.description});
    rows.push_back({versioned + L"\\CLSID", L"", classId});
    rows.push_back({current, L"", row.description});
    rows.push_back({current + L"\\CLSID", L"", classId});
    rows.push_back({current + L"\\CurVer", L"", versioned});
}

} // namespace

std::wstring guidText(GUID const& id)
{
    wchar_t text[40];
    ::StringFromGUID2(id, text, static_cast<int>(std::size(text)));
    return text;
}

std::wstring classKey(CLSID const& classId) { return L"CLSID\\" + guidText(classId); }

std::wstring currentProgId(ClassRow const& row) { return row.controlClass.progId; }

std::wstring versionedProgId(ClassRow const& row) { return currentProgId(row) + L".1"; }

std::vector<RegistryRow> registryRows(ClassRow const& row, std::wstring const& componentPath)
{
    std::wstring const key = classKey(row.controlClass.classId);
    std::wstring const status = decimalText(static_cast<long>(row.controlClass.miscStatus));
    std::vector<RegistryRow> rows = serverRows(key, row.description, componentPath);
    std::vector<RegistryRow> const controlRows{
        {key + L"\\ProgID", L"", versionedProgId(row)},
        {key + L"\\VersionIndependentProgID", L"", currentProgId(row)},
        keyOnly(key + L"\\Control"),
        keyOnly(key + L"\\Programmable"),
        {key + L"\\MiscStatus", L"", L"0"},
        {key + L"\\MiscStatus\\1", L"", status}, // 1: as content, the aspect of a control on a form
        {key + L"\\ToolboxBitmap32", L"", componentPath + L", " + decimalText(row.toolboxBitmap)},
        {key + L"\\TypeLib", L"", guidText(kLibraryId)},
        {key + L"\\Version", L"", L"1.0"},
        {key + L"\\Verb\\0", L"",
         std::wstring(kPrimaryVerbName) + L",0,2"}, // no menu flags; 2: on the container's menu
    };
    rows.insert(rows.end(), controlRows.begin(), controlRows.end());
    for (wchar_t const* const category : kCategories)
        rows.push_back(keyOnly(key + L"\\Implemented Categories\\" + category));
    appendProgIds(rows, row, guidText(row.controlClass.classId));
    return rows;
}

std::vector<RegistryRow> registryRows(PageClass const& page, std::wstring const& componentPath)
{
    return serverRows(classKey(page.classId), page.description, componentPath);
}

} // namespace quillet

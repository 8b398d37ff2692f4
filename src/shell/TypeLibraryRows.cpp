// What the registry holds about the type library and the interfaces in it: one row for each value.
#include "shell/TypeLibraryRows.h"

#include "base/Borrowed.h"
#include "base/Bstr.h"
#include "base/ComPtr.h"
#include "base/RunTimeError.h"

namespace quillet {

namespace {

// The system's own marshallers: by the type library, and for what has nothing but late-bound calls.
constexpr wchar_t kTypeLibraryMarshaller[] = L"{00020424-0000-0000-C000-000000000046}";
constexpr wchar_t kDispatchMarshaller[] = L"{00020420-0000-0000-C000-000000000046}";

/// A number as the keys of type libraries have it: in hexadecimal digits.
std::wstring hexadecimal(unsigned number)
{
    wchar_t text[9];
    ::wsprintfW(text, L"%x", number);
    return text;
}

std::wstring versionOf(LibraryRecord const& library)
{
    return hexadecimal(library->wMajorVerNum) + L'.' + hexadecimal(library->wMinorVerNum);
}

std::wstring nameOf(ITypeLib& library, INT index)
{
    Bstr name;
    check(library.GetDocumentation(index, name.put(), nullptr, nullptr, nullptr));
    return std::wstring(name.view());
}

std::wstring descriptionOf(ITypeLib& library)
{
    Bstr description;
    check(library.GetDocumentation(MEMBERID_NIL, nullptr, description.put(), nullptr, nullptr));
    return std::wstring(description.view());
}

void appendInterface(std::vector<RegistryRow>& rows, ITypeLib& library, UINT index,
                     LibraryRecord const& record)
{
    ComPtr<ITypeInfo> description;
    check(library.GetTypeInfo(index, description.put()));
    TypeRecord type(*description.get());
    check(description->GetTypeAttr(type.put()));
    if (type->typekind != TKIND_DISPATCH)
        return;
    std::wstring const key = L"Interface\\" + guidText(type->guid);
    bool const isDual = (type->wTypeFlags & TYPEFLAG_FDUAL) != 0;
    rows.push_back({key, L"", nameOf(library, static_cast<INT>(index))});
    rows.push_back({key + L"\\ProxyStubClsid32", L"", isDual ? kTypeLibraryMarshaller : kDispatchMarshaller});
    rows.push_back({key + L"\\TypeLib", L"", guidText(record->guid)});
    rows.push_back({key + L"\\TypeLib", L"Version", versionOf(record)});
}

} // namespace

std::vector<RegistryRow> typeLibraryRows(ITypeLib& library, std::wstring const& componentPath,
                                         std::wstring const& helpFolder)
{
    LibraryRecord record(library);
    check(library.GetLibAttr(record.put()));
    std::wstring const key = L"TypeLib\\" + guidText(record->guid) + L'\\' + versionOf(record);
    std::wstring const system = record->syskind == SYS_WIN64 ? L"\\win64" : L"\\win32";
    std::vector<RegistryRow> rows{
        {key, L"", descriptionOf(library)},
        {key + L"\\FLAGS", L"", std::to_wstring(record->wLibFlags)},
        {key + L"\\HELPDIR", L"", helpFolder},
        {key + L'\\' + hexadecimal(record->lcid) + system, L"", componentPath},
    };
    for (UINT index = 0; index < library.GetTypeInfoCount(); ++index)
        appendInterface(rows, library, index, record);
    return rows;
}

} // namespace quillet

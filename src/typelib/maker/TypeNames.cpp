// What the types that the lists of members name are called in the type library.
#include "typelib/maker/TypeNames.h"

#include "base/Bstr.h"
#include "base/RunTimeError.h"

#include <oleauto.h>

namespace quillet {

namespace {

struct AutomationType {
    std::wstring_view name;
    VARTYPE type;
};

constexpr AutomationType kAutomation[] = {
    {L"SHORT", VT_I2},  {L"LONG", VT_I4},           {L"FLOAT", VT_R4},
    {L"BSTR", VT_BSTR}, {L"VARIANT_BOOL", VT_BOOL}, {L"VARIANT", VT_VARIANT},
};

struct ImportedType {
    std::wstring_view name;
    wchar_t const* published; ///< what the standard OLE type library calls it
    bool isObject;
};

constexpr ImportedType kImported[] = {
    {L"OLE_COLOR", L"OLE_COLOR", false},
    {L"OLE_TRISTATE", L"OLE_TRISTATE", false},
    {L"IFontDisp", L"Font", true},
    {L"IPictureDisp", L"Picture", true},
};

/// {00020430-0000-0000-C000-000000000046}
constexpr GUID kStandardLibrary = {0x00020430, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

} // namespace

TypeNames::TypeNames() { check(::LoadRegTypeLib(kStandardLibrary, 2, 0, LOCALE_NEUTRAL, m_standard.put())); }

void TypeNames::add(std::wstring name, ComPtr<ITypeInfo> description)
{
    m_own.emplace(std::move(name), std::move(description));
}

NamedType TypeNames::find(std::wstring_view name) const
{
    for (AutomationType const& row : kAutomation)
        if (row.name == name)
            return {.automation = row.type, .description = {}, .isObject = false};
    for (ImportedType const& row : kImported)
        if (row.name == name)
            return {.automation = VT_USERDEFINED,
                    .description = imported(row.published),
                    .isObject = row.isObject};
    auto const own = m_own.find(name);
    if (own == m_own.end())
        throw RunTimeError(TYPE_E_ELEMENTNOTFOUND);
    return {.automation = VT_USERDEFINED, .description = own->second, .isObject = false};
}

ComPtr<ITypeInfo> TypeNames::imported(wchar_t const* name) const
{
    Bstr const text{name};
    ComPtr<ITypeInfo> found;
    MEMBERID member = 0;
    USHORT count = 1;
    check(m_standard->FindName(text.get(), 0, found.put(), &member, &count));
    if (count == 0)
        throw RunTimeError(TYPE_E_ELEMENTNOTFOUND);
    return found;
}

} // namespace quillet

// What a class's own type description says of its properties.
#include "browse/DescribedProperties.h"

#include "base/Borrowed.h"
#include "base/Bstr.h"
#include "base/ComPtr.h"
#include "base/DecimalText.h"
#include "base/RunTimeError.h"

#include <ocidl.h>
#include <olectl.h>

#include <algorithm>

namespace quillet {

namespace {

/// The standard OLE type library's colour.
constexpr GUID kOleColor = {0x66504301, 0xBE0F, 0x101A, {0x8B, 0xBB, 0x00, 0xAA, 0x00, 0x30, 0x0C, 0xAB}};

std::wstring nameOf(ITypeInfo& info, MEMBERID id)
{
    Bstr name;
    check(info.GetDocumentation(id, name.put(), nullptr, nullptr, nullptr));
    return std::wstring(name.view());
}

std::vector<Choice> choicesOf(ITypeInfo& enumeration, WORD count)
{
    std::vector<Choice> choices;
    for (UINT i = 0; i < count; ++i) {
        VariableRecord variable(enumeration);
        check(enumeration.GetVarDesc(i, variable.put()));
        if (variable->varkind != VAR_CONST)
            continue;
        long const value = variable->lpvarValue->lVal;
        choices.push_back({value, decimalText(value) + L" - " + nameOf(enumeration, variable->memid)});
    }
    return choices;
}

/// The type library describes MousePointer as a plain number: its values are named here.
std::vector<Choice> mousePointers()
{
    constexpr wchar_t const* kPointers[] = {L"Default",
                                            L"Arrow",
                                            L"Cross",
                                            L"I-Beam",
                                            L"Icon",
                                            L"Size",
                                            L"Size NE SW",
                                            L"Size N S",
                                            L"Size NW SE",
                                            L"Size W E",
                                            L"Up Arrow",
                                            L"Hourglass",
                                            L"No Drop",
                                            L"Arrow and Hourglass",
                                            L"Arrow and Question",
                                            L"Size All"};
    constexpr long kCustom = 99;
    std::vector<Choice> choices;
    for (wchar_t const* const name : kPointers) {
        auto const value = static_cast<long>(choices.size());
        choices.push_back({value, decimalText(value) + L" - " + name});
    }
    choices.push_back({kCustom, decimalText(kCustom) + L" - Custom"});
    return choices;
}

/// A named type: an alias, an enumeration or an object's interface.
void describeNamed(ITypeInfo& user, HREFTYPE reference, DescribedProperty& property)
{
    ComPtr<ITypeInfo> type;
    check(user.GetRefTypeInfo(reference, type.put()));
    TypeRecord record(*type.get());
    check(type->GetTypeAttr(record.put()));
    if (record->guid == kOleColor)
        property.kind = ValueKind::Colour;
    else if (record->guid == IID_IFontDisp)
        property.kind = ValueKind::Font;
    else if (record->guid == IID_IPictureDisp)
        property.kind = ValueKind::Picture;
    else if (record->typekind == TKIND_ENUM) {
        property.kind = ValueKind::Choice;
        property.choices = choicesOf(*type.get(), record->cVars);
    }
}

void describe(ITypeInfo& info, TYPEDESC const& type, DescribedProperty& property)
{
    switch (type.vt) {
    case VT_BSTR:
        property.kind = ValueKind::Text;
        break;
    case VT_BOOL:
        property.kind = ValueKind::Flag;
        break;
    case VT_I2:
    case VT_I4:
    case VT_VARIANT:
        property.kind = ValueKind::Number;
        break;
    case VT_USERDEFINED:
        describeNamed(info, type.hreftype, property);
        break;
    case VT_PTR:
        describe(info, *type.lptdesc, property);
        break;
    default:
        break;
    }
    if (property.name == L"MousePointer") {
        property.kind = ValueKind::Choice;
        property.choices = mousePointers();
    }
}

} // namespace

std::vector<DescribedProperty> describedProperties(ITypeInfo& description)
{
    TypeRecord type(description);
    check(description.GetTypeAttr(type.put()));
    std::vector<DescribedProperty> properties;
    for (UINT i = 0; i < type->cFuncs; ++i) {
        FunctionRecord function(description);
        check(description.GetFuncDesc(i, function.put()));
        if (function->invkind == INVOKE_PROPERTYGET) {
            DescribedProperty property{
                function->memid, nameOf(description, function->memid), ValueKind::Other, false, {}};
            describe(description, function->elemdescFunc.tdesc, property);
            properties.push_back(std::move(property));
        } else if (function->invkind & (INVOKE_PROPERTYPUT | INVOKE_PROPERTYPUTREF)) {
            for (DescribedProperty& property : properties)
                property.writable = property.writable || property.id == function->memid;
        }
    }
    return properties;
}

} // namespace quillet

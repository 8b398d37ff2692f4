// Fills one type description of the library in.
#include "typelib/maker/DescriptionWriter.h"

#include "base/RunTimeError.h"
#include "typelib/maker/Functions.h"

#include <deque>

namespace quillet {

namespace {

UINT typeFlagsOf(DescriptionKind kind)
{
    switch (kind) {
    case DescriptionKind::Interface:
        return TYPEFLAG_FHIDDEN | TYPEFLAG_FDUAL | TYPEFLAG_FNONEXTENSIBLE | TYPEFLAG_FOLEAUTOMATION |
               TYPEFLAG_FDISPATCHABLE;
    case DescriptionKind::Class:
        return TYPEFLAG_FCANCREATE | TYPEFLAG_FCONTROL;
    case DescriptionKind::Events:
        return TYPEFLAG_FHIDDEN | TYPEFLAG_FNONEXTENSIBLE | TYPEFLAG_FDISPATCHABLE;
    case DescriptionKind::Alias:
    case DescriptionKind::Enumeration:
        return 0;
    }
    return 0;
}

/// Fills one type description in.
class DescriptionWriter {
public:
    DescriptionWriter(ComPtr<ICreateTypeInfo> type, TypeNames const& names)
        : m_type(std::move(type)), m_names(names)
    {}

    void write(Description const& row)
    {
        m_helpContext = helpContextOf(row);
        check(m_type->SetHelpContext(m_helpContext));
        m_functionKind = row.kind == DescriptionKind::Events ? FUNC_DISPATCH : FUNC_PUREVIRTUAL;
        switch (row.kind) {
        case DescriptionKind::Interface:
        case DescriptionKind::Events:
            writeInterface(row.members);
            break;
        case DescriptionKind::Class:
            writeClass(row);
            break;
        case DescriptionKind::Alias:
            writeAlias(row);
            break;
        case DescriptionKind::Enumeration:
            writeEnumeration(row.values);
            break;
        }
        // Last, as adding what a class implements may change the flags of the class.
        check(m_type->SetTypeFlags(typeFlagsOf(row.kind)));
        check(m_type->LayOut());
    }

private:
    HREFTYPE referenceTo(ITypeInfo* description)
    {
        HREFTYPE reference = 0;
        check(m_type->AddRefTypeInfo(description, &reference));
        return reference;
    }

    HREFTYPE referenceTo(wchar_t const* name) { return referenceTo(m_names.find(name).description.get()); }

    void writeInterface(Members members)
    {
        check(m_type->AddImplType(0, referenceTo(m_names.imported(L"IDispatch").get())));
        for (MemberRow const& member : members)
            for (Function const& function : functionsOf(member))
                addFunction(function);
    }

    void writeClass(Description const& row)
    {
        check(m_type->AddImplType(0, referenceTo(row.interfaceName)));
        check(m_type->SetImplTypeFlags(0, IMPLTYPEFLAG_FDEFAULT));
        check(m_type->AddImplType(1, referenceTo(row.eventsName)));
        check(m_type->SetImplTypeFlags(1, IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE));
    }

    void writeAlias(Description const& row)
    {
        TYPEDESC target{};
        target.vt = VT_USERDEFINED;
        target.hreftype = referenceTo(row.interfaceName);
        check(m_type->SetTypeDescAlias(&target));
    }

    void writeEnumeration(std::span<EnumValueRow const> values)
    {
        UINT index = 0;
        for (EnumValueRow const& row : values) {
            VARIANT value{};
            value.vt = VT_I4;
            value.lVal = row.value;
            VARDESC description{};
            description.memid = MEMBERID_NIL;
            description.varkind = VAR_CONST;
            description.lpvarValue = &value;
            description.elemdescVar.tdesc.vt = VT_INT;
            check(m_type->AddVarDesc(index, &description));
            check(m_type->SetVarName(index, mutableText(row.name)));
            ++index;
        }
    }

    void addFunction(Function const& function)
    {
        std::vector<ELEMDESC> parameters;
        for (Parameter const& parameter : function.parameters)
            parameters.push_back(describe(parameter));

        FUNCDESC description{};
        description.memid = function.member->id;
        description.funckind = m_functionKind;
        description.invkind = function.invoke;
        description.callconv = CC_STDCALL;
        description.cParams = static_cast<SHORT>(parameters.size());
        description.lprgelemdescParam = parameters.data();
        description.elemdescFunc.tdesc.vt =
            m_functionKind == FUNC_DISPATCH ? VARTYPE{VT_VOID} : VARTYPE{VT_HRESULT};
        description.wFuncFlags = function.flags;
        check(m_type->AddFuncDesc(m_functions, &description));
        nameFunction(function);
        check(m_type->SetFuncHelpContext(m_functions, m_helpContext));
        if (*function.member->help)
            check(m_type->SetFuncDocString(m_functions, mutableText(function.member->help)));
        ++m_functions;
    }

    void nameFunction(Function const& function)
    {
        std::vector<wchar_t*> names{mutableText(function.member->name)};
        for (Parameter const& parameter : function.parameters)
            if (parameter.name)
                names.push_back(mutableText(parameter.name));
        check(m_type->SetFuncAndParamNames(m_functions, names.data(), static_cast<UINT>(names.size())));
    }

    ELEMDESC describe(Parameter const& parameter)
    {
        NamedType const type = m_names.find(parameter.type);
        TYPEDESC described{};
        described.vt = type.automation;
        if (type.description)
            described.hreftype = referenceTo(type.description.get());
        if (type.isObject)
            described = pointerTo(described);
        if (parameter.byReference)
            described = pointerTo(described);
        ELEMDESC result{};
        result.tdesc = described;
        result.paramdesc.wParamFlags = parameter.flags;
        return result;
    }

    TYPEDESC pointerTo(TYPEDESC const& target)
    {
        TYPEDESC pointer{};
        pointer.vt = VT_PTR;
        pointer.lptdesc = &m_targets.emplace_back(target);
        return pointer;
    }

    ComPtr<ICreateTypeInfo> m_type;
    TypeNames const& m_names;
    FUNCKIND m_functionKind = FUNC_PUREVIRTUAL;
    UINT m_functions = 0;
    DWORD m_helpContext = 0;
    std::deque<TYPEDESC> m_targets; ///< what the pointers point to; a deque moves nothing
};

} // namespace

void writeDescription(ComPtr<ICreateTypeInfo> type, Description const& row, TypeNames const& names)
{
    DescriptionWriter(std::move(type), names).write(row);
}

} // namespace quillet

// The functions that a member of an interface or an event set consists of, as a type library describes them.
#include "typelib/maker/Functions.h"

namespace quillet {

namespace {

constexpr WORD kBindable =
    FUNCFLAG_FBINDABLE | FUNCFLAG_FDISPLAYBIND | FUNCFLAG_FDEFAULTBIND | FUNCFLAG_FIMMEDIATEBIND;

Parameter in(wchar_t const* name, wchar_t const* type) { return {name, type, false, PARAMFLAG_FIN}; }
Parameter inOut(wchar_t const* name, wchar_t const* type)
{
    return {name, type, true, PARAMFLAG_FIN | PARAMFLAG_FOUT};
}
Parameter result(wchar_t const* type) { return {nullptr, type, true, PARAMFLAG_FOUT | PARAMFLAG_FRETVAL}; }

Function method(MemberRow const& member, std::vector<Parameter> parameters, WORD flags = 0)
{
    return {&member, INVOKE_FUNC, flags, std::move(parameters)};
}

/// The get of a property that can be set lends its result the name of the setter's parameter: SetterNames.h.
Function getter(MemberRow const& member, wchar_t const* name, WORD flags = 0)
{
    Parameter value = result(member.type);
    value.name = name;
    return {&member, INVOKE_PROPERTYGET, flags, {value}};
}

Function setter(MemberRow const& member, INVOKEKIND invoke, WORD flags = 0)
{
    return {&member, invoke, flags, {in(nullptr, member.type)}};
}

std::vector<Parameter> messageParameters()
{
    return {in(L"hwnd", L"LONG"), in(L"uMsg", L"LONG"), in(L"wParam", L"LONG"), in(L"lParam", L"LONG"),
            result(L"LONG")};
}

std::vector<Parameter> keyParameters() { return {inOut(L"KeyCode", L"SHORT"), inOut(L"Shift", L"SHORT")}; }

std::vector<Parameter> pointerParameters()
{
    return {inOut(L"Button", L"SHORT"), inOut(L"Shift", L"SHORT"), inOut(L"x", L"FLOAT"),
            inOut(L"y", L"FLOAT")};
}

} // namespace

std::vector<Function> functionsOf(MemberRow const& member)
{
    switch (member.kind) {
    case MemberKind::Value:
        return {getter(member, member.setterParameter), setter(member, INVOKE_PROPERTYPUT)};
    case MemberKind::DefaultValue:
        return {getter(member, member.setterParameter, kBindable),
                setter(member, INVOKE_PROPERTYPUT, kBindable)};
    case MemberKind::ReadOnly:
        return {getter(member, nullptr)};
    case MemberKind::Object:
        return {getter(member, member.setterParameter), setter(member, INVOKE_PROPERTYPUTREF)};
    case MemberKind::Method:
    case MemberKind::Event:
        return {method(member, {})};
    case MemberKind::Function:
        return {method(member, {result(member.type)})};
    case MemberKind::WindowProcedure:
        return {method(member, messageParameters())};
    case MemberKind::DefaultEvent:
        return {method(member, {}, FUNCFLAG_FUIDEFAULT)};
    case MemberKind::KeyEvent:
        return {method(member, keyParameters())};
    case MemberKind::CharacterEvent:
        return {method(member, {inOut(L"KeyAscii", L"SHORT")})};
    case MemberKind::PointerEvent:
        return {method(member, pointerParameters())};
    }
    return {};
}

} // namespace quillet

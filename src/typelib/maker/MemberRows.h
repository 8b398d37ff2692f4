// The lists of members as rows of data.
#pragma once

#include <oaidl.h>
#include <windows.h>

#include <span>

namespace quillet {

enum class MemberKind {
    Value,
    DefaultValue,
    ReadOnly,
    Object,
    Method,
    Function,
    WindowProcedure,
    Event,
    DefaultEvent,
    KeyEvent,
    CharacterEvent,
    PointerEvent,
};

/// One row of a list of members.
struct MemberRow {
    MemberKind kind;
    wchar_t const* name;
    wchar_t const* setterParameter; ///< what the parameter of a put or putref is called
    DISPID id;
    wchar_t const* type; ///< as the list spells it; empty where the kind has none
    wchar_t const* help; ///< empty for none
};

using Members = std::span<MemberRow const>;

Members membersOfFlatCommand() noexcept;
Members membersOfFlatOption() noexcept;
Members membersOfFlatCheck() noexcept;
Members membersOfToolButton() noexcept;
Members membersOfImageCommand() noexcept;
Members commandEvents() noexcept;
Members optionCheckEvents() noexcept;

} // namespace quillet

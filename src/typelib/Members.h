// The members of every control's default interface, as tables for those who call them by name.
#pragma once

#include <oaidl.h>
#include <olectl.h>
#include <windows.h>

#include <span>
#include <string_view>

namespace quillet {

enum class MemberKind { Value, ReadOnly, Object, Method, Function, WindowProcedure };

/// The type is VT_UI4 where 32 bits have either sign: in colours and in messages.
struct Member {
    std::wstring_view name;
    DISPID id;
    MemberKind kind;
    VARTYPE type; ///< of the value or result; VT_EMPTY for none
};

using Members = std::span<Member const>;

/// What the parameters of the window procedure are called.
inline constexpr std::wstring_view kMessageParameters[] = {L"hwnd", L"uMsg", L"wParam", L"lParam"};

/// The automation types of what the lists call by its C++ type.
namespace automation {
inline constexpr VARTYPE SHORT = VT_I2;
inline constexpr VARTYPE LONG = VT_I4;
inline constexpr VARTYPE BSTR = VT_BSTR;
inline constexpr VARTYPE VARIANT_BOOL = VT_BOOL;
inline constexpr VARTYPE VARIANT = VT_VARIANT;
inline constexpr VARTYPE OLE_COLOR = VT_UI4;
inline constexpr VARTYPE OLE_TRISTATE = VT_I4;
inline constexpr VARTYPE pdsButtonBorderStyleConstants = VT_I4;
inline constexpr VARTYPE ButtonBorderStyleConstants = VT_I4;
} // namespace automation

inline constexpr Member kQvFlatCommandMembers[] = {
#include "typelib/MemberRows.inc"
#include "typelib/members/qvFlatCommand.inc"
};

/// FlatToolButton and qvImageCommand, whose one difference is the name of a type.
inline constexpr Member kImageButtonMembers[] = {
#include "typelib/MemberRows.inc"
#include "typelib/members/FlatToolButton.inc"
};

inline constexpr Member kQvFlatOptionMembers[] = {
#include "typelib/MemberRows.inc"
#include "typelib/members/qvFlatOption.inc"
};

inline constexpr Member kQvFlatCheckMembers[] = {
#include "typelib/MemberRows.inc"
#include "typelib/members/qvFlatCheck.inc"
};

/// The place of a member's first function in the vtable; that of its put or putref follows.
constexpr unsigned slotOf(Members members, Member const& member) noexcept
{
    unsigned slot = 7; // after those of IUnknown and IDispatch
    for (Member const* each = members.data(); each != &member; ++each)
        slot += each->kind == MemberKind::Value || each->kind == MemberKind::Object ? 2 : 1;
    return slot;
}

} // namespace quillet

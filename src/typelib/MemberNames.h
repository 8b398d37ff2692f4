// The names of every control's members with their dispatch identifiers, as tables.
#pragma once

#include <oaidl.h>
#include <olectl.h>
#include <windows.h>

#include <string_view>

namespace quillet {

struct MemberName {
    std::wstring_view name;
    DISPID id;
};

#define QV_NAMED_ID(name, id) {L"" #name, (id)},

inline constexpr MemberName kQvFlatCommandMembers[] = {
#include "typelib/DispatchIdRows.inc"
#include "typelib/members/qvFlatCommand.inc"
};

/// FlatToolButton and qvImageCommand.
inline constexpr MemberName kImageButtonMembers[] = {
#include "typelib/DispatchIdRows.inc"
#include "typelib/members/imageButton.inc"
};

inline constexpr MemberName kQvFlatOptionMembers[] = {
#include "typelib/DispatchIdRows.inc"
#include "typelib/members/qvFlatOption.inc"
};

inline constexpr MemberName kQvFlatCheckMembers[] = {
#include "typelib/DispatchIdRows.inc"
#include "typelib/members/qvFlatCheck.inc"
};

#undef QV_NAMED_ID

} // namespace quillet

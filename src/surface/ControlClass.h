// What the surface, the class factory and the registration need to know of a control.
#pragma once

#include "base/ComCall.h"
#include "base/CreateFunction.h"
#include "typelib/Members.h"

#include <windows.h>

#include <string_view>

namespace quillet {

/// The member of that name; DISPID_UNKNOWN where there is none.
constexpr DISPID idOfMember(Members members, std::wstring_view name) noexcept
{
    for (Member const& member : members)
        if (member.name == name)
            return member.id;
    return DISPID_UNKNOWN;
}

/// One constant per control; everything else that the surface does is the same for all of them.
struct ControlClass {
    CLSID classId;
    IID interfaceId;       ///< the default dual interface
    IID eventsId;          ///< the default source, a dispatch interface
    wchar_t const* name;   ///< as a user reads it, such as "qvFlatCommand"
    wchar_t const* progId; ///< where its errors come from, such as "Quillet.qvFlatCommand"
    DWORD miscStatus;      ///< OLEMISC flags
    Members members;       ///< of the default interface
    DWORD helpContext;     ///< the help file's topic about it
    CreateFunction create;

    // The properties whose changes screen readers hear of: looked for while compiling, not at each change.
    DISPID caption = idOfMember(members, L"Caption");
    DISPID enabled = idOfMember(members, L"Enabled");
    DISPID checked = idOfMember(members, L"Checked");

    ErrorSource errorSource() const noexcept { return {progId, interfaceId, helpContext}; }
};

/// The name of the verb that activates a control, as container menus show it.
inline constexpr wchar_t kPrimaryVerbName[] = L"&Edit";

} // namespace quillet

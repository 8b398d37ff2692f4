// The lists of members as rows of data: each list is expanded here once.
#include "typelib/maker/MemberRows.h"

#include <olectl.h>

namespace quillet {

Members membersOfFlatCommand() noexcept
{
    static constexpr MemberRow kRows[] = {
#include "typelib/maker/MemberRowRows.inc"
#include "typelib/members/qvFlatCommand.inc"
    };
    return kRows;
}

Members membersOfFlatOption() noexcept
{
    static constexpr MemberRow kRows[] = {
#include "typelib/maker/MemberRowRows.inc"
#include "typelib/members/qvFlatOption.inc"
    };
    return kRows;
}

Members membersOfFlatCheck() noexcept
{
    static constexpr MemberRow kRows[] = {
#include "typelib/maker/MemberRowRows.inc"
#include "typelib/members/qvFlatCheck.inc"
    };
    return kRows;
}

Members membersOfToolButton() noexcept
{
    static constexpr MemberRow kRows[] = {
#include "typelib/maker/MemberRowRows.inc"
#include "typelib/members/FlatToolButton.inc"
    };
    return kRows;
}

Members membersOfImageCommand() noexcept
{
    static constexpr MemberRow kRows[] = {
#include "typelib/maker/MemberRowRows.inc"
#include "typelib/members/qvImageCommand.inc"
    };
    return kRows;
}

Members commandEvents() noexcept
{
    static constexpr MemberRow kRows[] = {
#include "typelib/maker/MemberRowRows.inc"
#include "typelib/members/commandEvents.inc"
    };
    return kRows;
}

Members optionCheckEvents() noexcept
{
    static constexpr MemberRow kRows[] = {
#include "typelib/maker/MemberRowRows.inc"
#include "typelib/members/optionCheckEvents.inc"
    };
    return kRows;
}

} // namespace quillet

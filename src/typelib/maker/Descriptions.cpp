// The library's 24 type descriptions, in its order.
#include "typelib/maker/Descriptions.h"

#include "typelib/Guids.h"
#include "typelib/HelpContexts.h"
#include "typelib/Texts.h"

#include <string_view>

namespace quillet {

namespace {

// clang-format off
#define QV_ENUM(type, id) constexpr EnumValueRow kValuesOf_##type[] = {
#define QV_ENUM_VALUE(name, value) {L## #name, value},
#define QV_ENUM_END };
// clang-format on
#include "typelib/Enumerations.inc"

Description interfaceRow(wchar_t const* name, GUID const& id, Members members)
{
    return {.kind = DescriptionKind::Interface, .name = name, .id = id, .members = members};
}

Description classRow(wchar_t const* name, GUID const& id, wchar_t const* interfaceName,
                     wchar_t const* eventsName, wchar_t const* help)
{
    return {.kind = DescriptionKind::Class,
            .name = name,
            .id = id,
            .interfaceName = interfaceName,
            .eventsName = eventsName,
            .help = help};
}

Description aliasRow(wchar_t const* name, GUID const& id, wchar_t const* target)
{
    return {.kind = DescriptionKind::Alias, .name = name, .id = id, .interfaceName = target};
}

Description eventsRow(wchar_t const* name, GUID const& id, Members members)
{
    return {.kind = DescriptionKind::Events, .name = name, .id = id, .members = members};
}

Description enumerationRow(wchar_t const* name, GUID const& id, std::span<EnumValueRow const> values)
{
    return {.kind = DescriptionKind::Enumeration, .name = name, .id = id, .values = values};
}

} // namespace

DWORD helpContextOf(Description const& row) noexcept
{
    struct TopicRow {
        std::wstring_view control;
        DWORD topic;
    };
    constexpr TopicRow kTopics[] = {
        {L"qvFlatCommand", kHelpQvFlatCommand},   {L"qvImageCommand", kHelpQvImageCommand},
        {L"FlatToolButton", kHelpFlatToolButton}, {L"qvFlatOption", kHelpQvFlatOption},
        {L"qvFlatCheck", kHelpQvFlatCheck},
    };
    // Interfaces, events and aliases have the control's name in theirs.
    for (TopicRow const& each : kTopics)
        if (std::wstring_view(row.name).find(each.control) != std::wstring_view::npos)
            return each.topic;
    return kHelpManual;
}

std::vector<Description> const& descriptions()
{
    // clang-format off
    static std::vector<Description> const kRows{
        interfaceRow(L"_qvFlatCommand", kQvFlatCommandInterface, membersOfFlatCommand()),
        classRow(L"qvFlatCommand", kQvFlatCommandClass, L"_qvFlatCommand", L"__qvFlatCommand", kQvFlatCommandText),
        aliasRow(L"qvFlatCommand___v0", kQvFlatCommandAlias, L"_qvFlatCommand"),
        interfaceRow(L"_qvFlatOption", kQvFlatOptionInterface, membersOfFlatOption()),
        classRow(L"qvFlatOption", kQvFlatOptionClass, L"_qvFlatOption", L"__qvFlatOption", kQvFlatOptionText),
        interfaceRow(L"_qvFlatCheck", kQvFlatCheckInterface, membersOfFlatCheck()),
        classRow(L"qvFlatCheck", kQvFlatCheckClass, L"_qvFlatCheck", L"__qvFlatCheck", kQvFlatCheckText),
        interfaceRow(L"_FlatToolButton", kFlatToolButtonInterface, membersOfToolButton()),
        classRow(L"FlatToolButton", kFlatToolButtonClass, L"_FlatToolButton", L"__FlatToolButton", kFlatToolButtonText),
        aliasRow(L"FlatToolButton___v0", kFlatToolButtonAlias, L"_FlatToolButton"),
        interfaceRow(L"_qvImageCommand", kQvImageCommandInterface, membersOfImageCommand()),
        classRow(L"qvImageCommand", kQvImageCommandClass, L"_qvImageCommand", L"__qvImageCommand", kQvImageCommandText),
        aliasRow(L"qvImageCommand___v0", kQvImageCommandAlias, L"_qvImageCommand"),
        eventsRow(L"__qvFlatCommand", kQvFlatCommandEvents, commandEvents()),
        eventsRow(L"__qvFlatOption", kQvFlatOptionEvents, optionCheckEvents()),
        eventsRow(L"__qvFlatCheck", kQvFlatCheckEvents, optionCheckEvents()),
        eventsRow(L"__FlatToolButton", kFlatToolButtonEvents, commandEvents()),
        eventsRow(L"__qvImageCommand", kQvImageCommandEvents, commandEvents()),
#define QV_ENUM(type, id) enumerationRow(L## #type, id, kValuesOf_##type),
#define QV_ENUM_VALUE(name, value)
#define QV_ENUM_END
#include "typelib/Enumerations.inc"
    };
    // clang-format on
    return kRows;
}

} // namespace quillet

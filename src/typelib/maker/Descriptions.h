// The library's 24 type descriptions, in its order.
#pragma once

#include "typelib/maker/MemberRows.h"

#include <oaidl.h>
#include <windows.h>

#include <span>
#include <vector>

namespace quillet {

enum class DescriptionKind { Interface, Class, Alias, Events, Enumeration };

struct EnumValueRow {
    wchar_t const* name;
    long value;
};

struct Description {
    DescriptionKind kind;
    wchar_t const* name;
    GUID id;
    wchar_t const* interfaceName = nullptr;    ///< of a class: its default interface; of an alias: its target
    wchar_t const* eventsName = nullptr;       ///< of a class: its default source
    wchar_t const* help = nullptr;             ///< of a class
    Members members = {};                      ///< of an interface and of events
    std::span<EnumValueRow const> values = {}; ///< of an enumeration
};

std::vector<Description> const& descriptions();

/// The topic that a description and its members lead to: that of the control, or the manual's start.
DWORD helpContextOf(Description const& row) noexcept;

} // namespace quillet

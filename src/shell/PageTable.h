// The property pages that the component makes: one row each.
#pragma once

#include "shell/ClassTable.h"

namespace quillet {

/// A page's class: created by frames alone, so it has no name in scripts and no place in toolboxes.
struct PageRow {
    CLSID const& classId;
    CreateFunction create;
    wchar_t const* description;
};

std::span<PageRow const> pageTable() noexcept;

} // namespace quillet

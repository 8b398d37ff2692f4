// The published enumerations as C++ types. A host may pass any 32-bit value, so each is based on long.
#pragma once

namespace quillet {

// clang-format off
#define QV_ENUM(name, id) enum class name : long {
#define QV_ENUM_VALUE(name, value) name = (value),
#define QV_ENUM_END };
// clang-format on
#include "typelib/Enumerations.inc"

} // namespace quillet

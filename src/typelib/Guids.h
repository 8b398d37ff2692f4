// The identifiers of everything published, as constants.
#pragma once

#include <windows.h>

namespace quillet {

// clang-format off
#define QV_ID(constant, l, w1, w2, ...) inline constexpr GUID constant = {l, w1, w2, {__VA_ARGS__}};
#define QV_INTERFACE_ID(constant, type, ...) QV_ID(constant, __VA_ARGS__)
// clang-format on
#include "typelib/Guids.inc"

} // namespace quillet

// The help file's topics, by the numbers under which object browsers and designers ask for them.
#pragma once

#include <windows.h>

namespace quillet {

inline constexpr DWORD kHelpManual = 1;
inline constexpr DWORD kHelpQvFlatCommand = 10;
inline constexpr DWORD kHelpQvImageCommand = 20;
inline constexpr DWORD kHelpFlatToolButton = 30;
inline constexpr DWORD kHelpQvFlatOption = 40;
inline constexpr DWORD kHelpQvFlatCheck = 50;

} // namespace quillet

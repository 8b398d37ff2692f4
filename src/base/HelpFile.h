// The help file, which error reports and the type library name alike.
#pragma once

namespace quillet {

inline constexpr wchar_t kHelpFile[] = L"quillet.chm";

} // namespace quillet

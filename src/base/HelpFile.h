// The help file, which error reports, the property pages and the type library name alike.
#pragma once

#include <string>

namespace quillet {

inline constexpr wchar_t kHelpFile[] = L"quillet.chm";

/// The help file with its folder: it lies beside the component.
std::wstring helpFilePath();

} // namespace quillet

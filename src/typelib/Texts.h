// The names and texts by which users meet the library and its classes, in a toolbox or an object browser.
#pragma once

namespace quillet {

inline constexpr wchar_t kLibraryName[] = L"Quillet";
inline constexpr wchar_t kLibraryText[] = L"Quillet flat buttons";

inline constexpr wchar_t kQvFlatCommandText[] = L"Quillet flat command button";
inline constexpr wchar_t kQvFlatOptionText[] = L"Quillet flat option button";
inline constexpr wchar_t kQvFlatCheckText[] = L"Quillet flat check box";
inline constexpr wchar_t kFlatToolButtonText[] = L"Quillet flat tool button";
inline constexpr wchar_t kQvImageCommandText[] = L"Quillet image command button";

} // namespace quillet

// Standard font objects of a control's own.
#pragma once

#include "base/ComPtr.h"

#include <ocidl.h>
#include <windows.h>

#include <string_view>

namespace quillet {

/// A copy of the control's own: two controls that share a container's font object would underline each
/// other's captions. Empty when the object is no font.
ComPtr<IFont> copyOfFont(IUnknown* font) noexcept;

/// The system's user-interface font as a standard font object.
ComPtr<IFont> systemFont();

/// A font object that is to load its data.
ComPtr<IFont> unloadedFont();

/// Whether two fonts look the same.
bool equalFonts(IFont* a, IFont* b) noexcept;

/// Whether a font size, in ten thousandths of a point, can be meant: drawing letters of a forged size takes
/// some systems minutes.
constexpr bool isHonestFontSize(LONGLONG size) noexcept { return size >= 0 && size <= 2160 * 10000LL; }

/// The width of a caption as it is written, in whole pixels of the screen. Throws where the font has no
/// handle to give.
long textWidth(IFont& font, std::wstring_view text);

} // namespace quillet

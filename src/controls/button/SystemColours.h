// The desktop's colours that buttons are drawn with, as OLE colours: resolved when they are drawn.
#pragma once

#include <ocidl.h>
#include <windows.h>

namespace quillet::colour {

inline constexpr OLE_COLOR kSelectionHighlight = 0x8000000D;
inline constexpr OLE_COLOR kButtonFace = 0x8000000F;
inline constexpr OLE_COLOR kButtonShadow = 0x80000010;
inline constexpr OLE_COLOR kGreyText = 0x80000011;
inline constexpr OLE_COLOR kButtonText = 0x80000012;
inline constexpr OLE_COLOR k3dHighlight = 0x80000014;
inline constexpr OLE_COLOR k3dDarkShadow = 0x80000015;
inline constexpr OLE_COLOR k3dLight = 0x80000016;

} // namespace quillet::colour

// The desktop's colours as OLE colours: resolved when they are drawn.
#pragma once

#include <ocidl.h>
#include <windows.h>

namespace quillet::colour {

/// A colour of the desktop by its index, one of Windows' COLOR_ constants.
constexpr OLE_COLOR ofDesktop(int index) noexcept { return 0x80000000 | static_cast<OLE_COLOR>(index); }

inline constexpr OLE_COLOR kSelectionHighlight = ofDesktop(COLOR_HIGHLIGHT);
inline constexpr OLE_COLOR kButtonFace = ofDesktop(COLOR_BTNFACE);
inline constexpr OLE_COLOR kButtonShadow = ofDesktop(COLOR_BTNSHADOW);
inline constexpr OLE_COLOR kGreyText = ofDesktop(COLOR_GRAYTEXT);
inline constexpr OLE_COLOR kButtonText = ofDesktop(COLOR_BTNTEXT);
inline constexpr OLE_COLOR k3dHighlight = ofDesktop(COLOR_3DHILIGHT);
inline constexpr OLE_COLOR k3dDarkShadow = ofDesktop(COLOR_3DDKSHADOW);
inline constexpr OLE_COLOR k3dLight = ofDesktop(COLOR_3DLIGHT);

} // namespace quillet::colour

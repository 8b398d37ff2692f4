// The words that the controls' property tables are written in.
#pragma once

#include "drawing/SystemColours.h"
#include "surface/PropertyTable.h"

namespace quillet::rowwords {

using Row = PropertyRow;
using Kind = PropertyKind;
using Held = SurfaceAccess;

// What a new control has: its row's default, or what the surface starts with.
inline constexpr auto kNew = AtStart::Default;
inline constexpr auto kAsSurface = AtStart::Surface;

inline constexpr auto kSaved = Saved::Yes;
inline constexpr auto kUnsaved = Saved::No;

// What the setter ends with. A quiet change shows at the next repaint.
inline constexpr auto kPaint = Repaint::Yes;
inline constexpr auto kMeasure = Repaint::AfterMeasuring;
inline constexpr auto kByItself = Repaint::ByItself;
inline constexpr auto kQuiet = Repaint::No;

// The system's colours among the defaults.
inline constexpr auto kFace = static_cast<long>(colour::kButtonFace);
inline constexpr auto kText = static_cast<long>(colour::kButtonText);
inline constexpr auto kGreyText = static_cast<long>(colour::kGreyText);
inline constexpr auto kShadow = static_cast<long>(colour::kButtonShadow);
inline constexpr auto kDark = static_cast<long>(colour::k3dDarkShadow);
inline constexpr auto k3dLight = static_cast<long>(colour::k3dLight);
inline constexpr auto k3dHighlight = static_cast<long>(colour::k3dHighlight);
inline constexpr auto kHighlight = static_cast<long>(colour::kSelectionHighlight);

} // namespace quillet::rowwords

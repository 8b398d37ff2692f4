// The tinted backgrounds of the task-pane look, made of the desktop's own colours.
#pragma once

#include <windows.h>

#include <wtypes.h>

namespace quillet {

/// The tint of the current colour scheme as 0x00BBGGRR, the deep one for any value but 0. Nothing is kept: a
/// change of the scheme shows at the next paint.
COLORREF XPStateColor(VARIANT_BOOL deep);

/// The tint of a button face colour and a selection colour, both 0x00BBGGRR.
COLORREF stateTint(COLORREF face, COLORREF selection, VARIANT_BOOL deep);

/// Value, or the bound that it is beyond. With bounds that cross, a value beyond both gives their sum.
/// Overflow where a product or a sum leaves 32 bits.
long Clamp(long value, long lower, long upper);

} // namespace quillet

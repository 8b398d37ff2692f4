// The native window that stands in for each of the environment's own controls.
#pragma once

#include "gallery/form/FormValues.h"
#include "gallery/intrinsic/IntrinsicControl.h"

#include <windows.h>

namespace quillet::gallery {

struct WindowStyle {
    wchar_t const* windowClass;
    DWORD style;
    DWORD extended;
};

/// What the properties of the form file make of the kind's window.
WindowStyle windowStyleOf(IntrinsicKind kind, FormValues const& values);

} // namespace quillet::gallery

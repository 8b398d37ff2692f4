// The colours of the task-pane look, which come from the desktop and not from the user.
#pragma once

#include "controls/button/VisualState.h"

#include <ocidl.h>
#include <windows.h>

namespace quillet {

/// The colours of one look, unresolved.
struct ButtonColours {
    OLE_COLOR fore;
    OLE_COLOR back;
    OLE_COLOR border;
};
ButtonColours taskPaneColours(VisualState state);

} // namespace quillet

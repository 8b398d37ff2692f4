// The colours of the task-pane look, which come from the desktop and not from the user.
#include "controls/button/TaskPane.h"

#include "drawing/SystemColours.h"
#include "drawing/xpstate.h"

namespace quillet {

ButtonColours taskPaneColours(VisualState state)
{
    switch (state) {
    case VisualState::Hot:
        return {colour::kButtonText, XPStateColor(VARIANT_FALSE), colour::kSelectionHighlight};
    case VisualState::Pressed:
        return {colour::k3dHighlight, XPStateColor(VARIANT_TRUE), colour::kSelectionHighlight};
    case VisualState::Disabled:
        return {colour::kButtonShadow, colour::kButtonFace, colour::kButtonShadow};
    case VisualState::Normal:
        break;
    }
    return {colour::kButtonText, colour::kButtonFace, colour::kButtonShadow};
}

} // namespace quillet

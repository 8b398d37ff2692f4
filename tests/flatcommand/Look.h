// The expected picture of a qvFlatCommand, worked out by hand and painted with plain GDI calls.
#pragma once

#include "kit/Canvas.h"

#include <ocidl.h>
#include <windows.h>

#include <optional>
#include <string>

namespace quillet::flat {

/// What one paint must show.
struct Look {
    COLORREF fore;
    COLORREF back;
    COLORREF border;
    int borderWidth = 1;
    bool bordered = true;               ///< a border style of 1
    int emphasis = 0;                   ///< pixels that focus or the default mark add to the border
    std::optional<COLORREF> frame = {}; ///< of the focus frame
    std::wstring caption = {};          ///< with its markers
    int indent = 4;
    bool centred = false;
};

/// The looks of a button whose colours are as they come.
Look normalLook();
Look hotLook();
Look pressedLook();
Look disabledLook();
/// The same in the task-pane scheme.
Look taskPaneNormalLook();
Look taskPaneHotLook();
Look taskPanePressedLook();
Look taskPaneDisabledLook();

/// The tint of the task-pane scheme: half of the selection colour and half of the face, lifted.
COLORREF tint(COLORREF face, COLORREF selection, bool deep);

/// Where the caption stands.
POINT captionPlace(Look const& look, SIZE size, IFont& font);

void paint(kit::Canvas& canvas, Look const& look, IFont& font);

} // namespace quillet::flat

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
Look normalLook(std::wstring const& caption = {});
Look hotLook(std::wstring const& caption = {});
Look pressedLook(std::wstring const& caption = {});
Look disabledLook(std::wstring const& caption = {});
/// The same in the task-pane scheme.
Look taskPaneNormalLook(std::wstring const& caption = {});
Look taskPaneHotLook(std::wstring const& caption = {});
Look taskPanePressedLook(std::wstring const& caption = {});
Look taskPaneDisabledLook(std::wstring const& caption = {});
/// Colours of one's own.
Look lookOf(COLORREF fore, COLORREF back, COLORREF border, std::wstring const& caption = {});

/// The look with the mark of the focus or the default button; with that and the focus frame.
Look emphasised(Look look);
Look focused(Look look);
/// The look with a border of that many pixels.
Look withBorder(int width, Look look);

/// Where the caption stands.
POINT captionPlace(Look const& look, SIZE size, IFont& font);

void paint(kit::Canvas& canvas, Look const& look, IFont& font);

} // namespace quillet::flat

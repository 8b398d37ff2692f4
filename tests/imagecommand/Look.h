// The expected picture of an image button, worked out by hand and painted with plain calls.
#pragma once

#include "ImageButton.h"
#include "Pictures.h"
#include "kit/ButtonLook.h"

#include <optional>
#include <string>

namespace quillet::image {

using kit::middle;

/// Colours that no scheme has.
constexpr COLORREF kFore = RGB(10, 20, 30), kBack = RGB(200, 205, 210);
constexpr COLORREF kLight = RGB(1, 101, 201), kDark = RGB(2, 102, 202);

/// A plain picture and where its top left corner stands.
struct Shown {
    Plain picture;
    int left;
    int top;
};

/// What one paint must show.
struct Look {
    COLORREF fore;
    COLORREF back;
    COLORREF light;
    COLORREF dark;
    int border = 1;            ///< pixels, emphasis included; 0 for none
    std::wstring caption = {}; ///< with its markers
    int captionLeft = 5;       ///< nothing but a number: the tests say where it comes from
    bool centred = false;
    int offset = 0; ///< of the caption, both ways
    std::optional<Shown> shown = {};
};

/// With the caption where it stands without a picture and with the usual indent.
Look lookOf(COLORREF fore, COLORREF back, COLORREF light, COLORREF dark, int border = 1,
            std::wstring const& caption = {});
/// Of the colours above.
Look plainLook(int border = 1, std::wstring const& caption = {});

/// Gives the normal look the colours above; or every look, so that they differ in nothing else.
void setColors(ImageButton& button);
void setColorsOfEveryLook(ImageButton& button);

void paint(kit::Canvas& canvas, Look const& look, IFont& font);

/// Empty when the button shows the look; else the pixels that differ.
std::string differencesFrom(ImageButton const& button, Look const& look);

/// The colour of one pixel that the button shows.
COLORREF pixelAt(auto const& button, int x, int y) { return kit::Canvas(button.window()).at(x, y); }

/// The tint of the task-pane scheme on the present desktop.
COLORREF taskPaneTint(bool deep);

} // namespace quillet::image

// A running qvFlatCommand on the screen, compared with the picture that it must show.
#pragma once

#include "Face.h"
#include "FlatButton.h"

#include <string>

namespace quillet::flat {

/// Colours that no scheme has.
inline constexpr COLORREF kFore = RGB(10, 20, 30);
inline constexpr COLORREF kBack = RGB(40, 50, 60);
inline constexpr COLORREF kBorder = RGB(70, 80, 90);

/// Activated and painted, without a caption.
class ShownButton : public FlatButton {
public:
    ShownButton(kit::Library const& library, kit::FakeForm& form, RECT const& place = kPlace);

    SIZE size() const;
    /// What the window shows now.
    void read(kit::Canvas& canvas) const;
    /// Empty when the window shows the expected face; else the pixels that differ.
    std::string differencesFrom(Face const& face) const;
    /// The same for a picture as text, for buttons small enough.
    std::string picture(kit::Letters const& letters) const;

    /// Gives the normal look the colours above.
    void setColors();
    void setWidth(short width);

    /// Moves the cursor onto the button and repaints it.
    void makeHot();
    /// The same with the left mouse button held down; the button has the focus then.
    void makePressed();
    /// Lets the mouse button go and takes the cursor away.
    void leave();

private:
    bool m_pressed = false;
};

} // namespace quillet::flat

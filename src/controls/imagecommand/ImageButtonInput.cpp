// An image button's mouse. Everything here happens while the button reacts to the user.
#include "controls/imagecommand/ImageButton.h"
#include "surface/window/Cursor.h"
#include "typelib/DispatchIds.h"

namespace quillet {

namespace {

/// Whether a point in twips lies in the surface: its right and bottom edges count as inside.
bool isInside(MouseArguments const& mouse, SIZE size, TwipsPerPixel const& twips)
{
    auto const right = static_cast<float>(size.cx * twips.x);
    auto const bottom = static_cast<float>(size.cy * twips.y);
    return mouse.x >= 0 && mouse.x <= right && mouse.y >= 0 && mouse.y <= bottom;
}

} // namespace

void ImageButton::onMouseMove(MouseArguments const& mouse)
{
    if (!reacts())
        return;
    CursorMoment const moment(events());
    bool const changed = enterOrExit(isOver());
    bool const pressLost = mouse.button != MouseButtons::kLeft && isPressed(); // let go outside the button
    if (changed || pressLost)
        repaint();
    raiseMouseEvent(eventid::command::MouseMove, mouse);
}

AccessibleLook ImageButton::accessibleLook() const
{
    AccessibleLook look = CommandButton::accessibleLook();
    if (m_looks.checkButton) {
        look.role = ROLE_SYSTEM_CHECKBUTTON;
        look.action = m_looks.checked ? L"Uncheck" : L"Check";
    }
    if (isChecked())
        look.state |= STATE_SYSTEM_CHECKED;
    return look;
}

/// Changes the field and not the property: a click by the user is not saved with the form.
void ImageButton::onReleased(MouseArguments const& mouse)
{
    if (m_looks.checkButton && isInside(mouse, clientSize(), window().twipsPerPixel()))
        m_looks.checked = !m_looks.checked;
}

void ImageButton::doDefaultAction()
{
    if (reacts() && m_looks.checkButton) {
        m_looks.checked = !m_looks.checked;
        repaint();
        accessibility().stateChanged();
    }
    onClick();
}

} // namespace quillet

// The flat command button's mouse, keys and focus. Everything here happens at run time only.
#include "controls/flatcommand/qvFlatCommand.h"
#include "surface/window/Cursor.h"
#include "surface/window/MouseCapture.h"
#include "typelib/DispatchIds.h"
#include "typelib/Guids.h"
#include "winsvc/modCmdSupport.h"

namespace quillet {

void qvFlatCommand::onMouseMove(MouseArguments const& mouse)
{
    bool const running = userMode();
    if (running)
        ignoringErrors(
            [&] { m_looks.toolTipText = container().requiredExtenderProperty(L"ToolTipText").toString(); });
    CursorMoment const moment(events());
    if (running) {
        HWND const own = window().existing(); // the container may have closed the button meanwhile
        bool const dragged =
            mouse.button == MouseButtons::kLeft && hasMouseCapture(own) && isOver() != m_lastOver;
        if (dragged)
            setPressed(true); // painting takes it back when the cursor is not over the button
        else if (mouse.button == 0 && enterOrExit(isOver()))
            repaint();
        raiseMouseEvent(eventid::command::MouseMove, mouse);
    }
    m_lastOver = isOver();
}

void qvFlatCommand::onGotFocus()
{
    if (userMode())
        refreshSiblings();
}

void qvFlatCommand::onLostFocus()
{
    if (!userMode())
        return;
    if (isDefault(*this))
        repaint();
    refreshSiblings();
}

/// The default button's look depends on which button has the focus.
void qvFlatCommand::refreshSiblings() noexcept
{
    ignoringErrors([&] {
        CursorMoment const moment;
        for (auto const& sibling : container().parentControls())
            if (auto const button = controlInterface(sibling.get(), kQvFlatCommandInterface))
                check(static_cast<_qvFlatCommand*>(button.get())->Refresh());
    });
}

} // namespace quillet

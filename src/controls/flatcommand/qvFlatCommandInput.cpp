// The flat command button's mouse, keys and focus. Everything here happens at run time only.
#include "controls/flatcommand/qvFlatCommand.h"
#include "typelib/DispatchIds.h"
#include "winsvc/modCmdSupport.h"

namespace quillet {

namespace {

namespace event = eventid::command;

constexpr short kLeftButton = 1;
constexpr short kSpace = 32;

/// Whether a press or release is the button's: a test of bits, which every ordinary shift state passes.
bool isOwnPress(MouseArguments const& mouse) noexcept
{
    int const left = mouse.button == kLeftButton ? VARIANT_TRUE : VARIANT_FALSE;
    return (left & ~mouse.shift) != 0;
}

} // namespace

bool qvFlatCommand::isOver()
{
    POINT cursor = {};
    ::GetCursorPos(&cursor);
    return ::WindowFromPoint(cursor) == hWnd();
}

/// While the cursor is over the button its window holds the capture, so the move that leaves comes here, too.
bool qvFlatCommand::enterOrExit(bool over)
{
    HWND const window = hWnd();
    bool const captured = ::GetCapture() == window;
    if (over == captured)
        return false;
    if (over)
        ::SetCapture(window);
    else
        ::ReleaseCapture();
    raiseEvent(over ? event::MouseEnter : event::MouseExit);
    return true;
}

void qvFlatCommand::onMouseMove(MouseArguments const& mouse)
{
    if (userMode()) {
        ignoringErrors(
            [&] { m_looks.toolTipText = container().requiredExtenderProperty(L"ToolTipText").toString(); });
        bool const dragged =
            mouse.button == kLeftButton && ::GetCapture() == hWnd() && isOver() != m_lastOver;
        if (dragged)
            setPressed(true); // painting takes it back when the cursor is not over the button
        else if (mouse.button == 0 && enterOrExit(isOver()))
            repaint();
        raiseMouseEvent(event::MouseMove, mouse);
    }
    m_lastOver = isOver();
}

void qvFlatCommand::onMouseDown(MouseArguments const& mouse)
{
    if (!userMode())
        return;
    if (isOwnPress(mouse))
        setPressed(true);
    raiseMouseEvent(event::MouseDown, mouse);
}

void qvFlatCommand::onMouseUp(MouseArguments const& mouse)
{
    if (!userMode())
        return;
    if (isOwnPress(mouse))
        setPressed(false);
    raiseMouseEvent(event::MouseUp, mouse);
}

void qvFlatCommand::onClick()
{
    if (userMode())
        raiseEvent(event::Click);
}

void qvFlatCommand::onDblClick()
{
    if (userMode())
        raiseEvent(event::DblClick);
}

/// Enter reaches a default button through its container.
void qvFlatCommand::onKeyPress(short keyAscii)
{
    if (keyAscii == kSpace)
        onClick();
}

void qvFlatCommand::onAccessKeyPress(short) { onClick(); }

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

void qvFlatCommand::setPressed(bool pressed)
{
    m_pressed = pressed;
    repaint();
}

void qvFlatCommand::raiseMouseEvent(DISPID id, MouseArguments const& mouse)
{
    MouseArguments own = mouse; // a sink may write to the arguments
    raiseEvent(id, {Variant::ofShortRef(&own.button), Variant::ofShortRef(&own.shift),
                    Variant::ofFloatRef(&own.x), Variant::ofFloatRef(&own.y)});
}

/// The default button's look depends on which button has the focus.
void qvFlatCommand::refreshSiblings() noexcept
{
    ignoringErrors([&] {
        for (auto const& sibling : container().parentControls())
            if (auto const button = controlInterface(sibling.get(), __uuidof(_qvFlatCommand)))
                check(static_cast<_qvFlatCommand*>(button.get())->Refresh());
    });
}

} // namespace quillet

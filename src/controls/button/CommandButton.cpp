// What all command buttons do alike: follow the mouse, press, click, tell whether they are emphasised.
#include "controls/button/CommandButton.h"

#include "controls/button/Caption.h"
#include "drawing/OffScreenDC.h"
#include "surface/window/Cursor.h"
#include "surface/window/MouseCapture.h"
#include "typelib/DispatchIds.h"
#include "winsvc/modCmdSupport.h"

#include <algorithm>
#include <utility>

namespace quillet {

namespace {

constexpr short kSpace = 32;

} // namespace

bool isOwnPress(MouseArguments const& mouse) noexcept
{
    int const left = mouse.button == MouseButtons::kLeft ? VARIANT_TRUE : VARIANT_FALSE;
    return (left & ~mouse.shift) != 0;
}

bool CommandButton::isOver()
{
    HWND const own = window().existing();
    return own && isUnderCursor(own);
}

bool CommandButton::enterOrExit(bool over)
{
    HWND const own = window().existing();
    if (over == hasMouseCapture(own))
        return false;
    bool const exitIsDue = std::exchange(m_entered, over) && over; // the capture was lost without one
    changeMouseCapture(own, over);
    if (exitIsDue)
        raiseEvent(eventid::command::MouseExit);
    raiseEvent(over ? eventid::command::MouseEnter : eventid::command::MouseExit);
    return true;
}

void CommandButton::onWindowMade()
{
    m_entered = false;
    m_toolTip.windowMade(hWnd());
}

/// Shown, a window is to be painted as a whole; so it is, at once, and need not be a second time.
void CommandButton::onShow()
{
    window().forestallPaint();
    repaint();
}

/// Without the capture no move tells that the mouse leaves a hot button.
void CommandButton::onCaptureLost()
{
    if (!reacts())
        m_entered = false;
    if (m_entered)
        awaitLeaving(hWnd());
}

void CommandButton::onMouseLeft()
{
    // A button that was taken from its form raises no MouseExit.
    if (!std::exchange(m_entered, false) || !reacts() || !::IsWindowVisible(hWnd()))
        return;
    raiseEvent(eventid::command::MouseExit);
    repaint();
}

void CommandButton::onMouseDown(MouseArguments const& mouse)
{
    if (!reacts())
        return;
    if (isOwnPress(mouse))
        setPressed(true);
    raiseMouseEvent(eventid::command::MouseDown, mouse);
}

void CommandButton::onMouseUp(MouseArguments const& mouse)
{
    if (!reacts())
        return;
    if (isOwnPress(mouse)) {
        m_pressed = false;
        onReleased(mouse);
        repaint();
        accessibility().stateChanged();
    }
    raiseMouseEvent(eventid::command::MouseUp, mouse);
}

void CommandButton::onClick()
{
    if (reacts())
        raiseEvent(eventid::command::Click);
}

void CommandButton::onDblClick()
{
    if (reacts())
        raiseEvent(eventid::command::DblClick);
}

/// Enter reaches a default button through its container.
void CommandButton::onKeyPress(short keyAscii)
{
    if (keyAscii == kSpace)
        onClick();
}

void CommandButton::onAccessKeyPress(short) { onClick(); }

void CommandButton::setPressed(bool pressed)
{
    m_pressed = pressed;
    repaint();
    accessibility().stateChanged();
}

AccessibleLook CommandButton::accessibleLook() const
{
    SplitCaption split(caption());
    LONG const state = (m_pressed ? STATE_SYSTEM_PRESSED : 0) |
                       (m_state == VisualState::Hot ? STATE_SYSTEM_HOTTRACKED : 0) |
                       (isDefault(*this) ? STATE_SYSTEM_DEFAULT : 0);
    return {ROLE_SYSTEM_PUSHBUTTON, state, std::move(split.shown), std::move(split.accessKey), L"Press"};
}

void CommandButton::decideState(bool reacting)
{
    if (!reacting) {
        m_state = VisualState::Normal;
        return;
    }
    bool const live = enabled() && isOver();
    if (!live)
        m_pressed = false;
    if (!enabled())
        m_state = VisualState::Disabled;
    else if (!live)
        m_state = VisualState::Normal;
    else
        m_state = m_pressed ? VisualState::Pressed : VisualState::Hot;
}

bool CommandButton::isEmphasisedDefault(bool userMode, std::span<IID const> takers) const
{
    if (!userMode || !isDefault(*this))
        return false;
    auto const active = container().activeControl();
    return std::ranges::none_of(
        takers, [&](IID const& kind) { return static_cast<bool>(controlInterface(active.get(), kind)); });
}

void CommandButton::open(OffScreenDC& canvas, HDC target, SIZE size)
{
    canvas.Initialize(target, size.cx, size.cy);
    takeUnderlineOff();
    canvas.Font(font());
}

/// Underline belongs to the access key: a font that has it loses it for good at the next paint. Taking it off
/// a font without it would make some systems build the font anew.
void CommandButton::takeUnderlineOff()
{
    BOOL underlined = FALSE;
    check(deref(font()).get_Underline(&underlined));
    if (!underlined)
        return;
    SurfaceFont::Deaf const ownChange(surfaceFont());
    check(font()->put_Underline(FALSE));
}

// 32 bits of a handle are significant on every Windows.
HRESULT CommandButton::answerHwnd(LONG* value)
{
    return call([&] { deref(value) = HandleToLong(hWnd()); });
}

HRESULT CommandButton::answerHdc(LONG* value)
{
    return call([&] { deref(value) = HandleToLong(window().dc()); });
}

HRESULT CommandButton::answerWindowProc(LONG window, LONG message, LONG wParam, LONG lParam, LONG* result)
{
    return call([&] { deref(result) = m_toolTip.WindowProc(window, message, wParam, lParam); });
}

} // namespace quillet

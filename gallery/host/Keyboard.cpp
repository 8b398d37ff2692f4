// The keyboard's rules of a form: Tab, arrows, Enter, Esc and access keys.
#include "gallery/host/Keyboard.h"

#include "gallery/host/Form.h"
#include "gallery/host/TabOrder.h"

#include <algorithm>

namespace quillet::gallery {

namespace {

bool isKeyMessage(UINT message) noexcept { return message >= WM_KEYFIRST && message <= WM_KEYLAST; }

bool isHeld(int key) noexcept { return ::GetKeyState(key) < 0; }

/// Function keys share their numbers with letters: Alt+F4 must not be taken for Alt+s.
bool mayBeAccessKey(MSG const& message) noexcept
{
    if (message.message == WM_SYSCHAR)
        return true;
    WPARAM const key = message.wParam;
    return message.message == WM_SYSKEYDOWN && ((key >= '0' && key <= '9') || (key >= 'A' && key <= 'Z'));
}

} // namespace

bool Keyboard::translate(MSG& message)
{
    if (!isKeyMessage(message.message))
        return false;
    m_form.focus().update();
    FormControl* const active = m_form.focus().active();
    if (active && active->translateKey(message))
        return true;
    return offered(message);
}

bool Keyboard::offered(MSG const& message)
{
    if (m_form.isDesign())
        return false;
    if (mayBeAccessKey(message))
        return accessKey(message);
    return message.message == WM_KEYDOWN && keyDown(message.wParam);
}

bool Keyboard::keyDown(WPARAM key)
{
    switch (key) {
    case VK_TAB:
        return !isHeld(VK_CONTROL) && tab();
    case VK_RETURN:
        return enter();
    case VK_ESCAPE: {
        FormControl const* const active = m_form.focus().active();
        bool const isWanted = active && const_cast<FormControl*>(active)->eatsKey(key);
        return !isWanted && press(m_form.focus().cancelButton(), key);
    }
    case VK_LEFT:
    case VK_UP:
    case VK_RIGHT:
    case VK_DOWN:
        return arrow(key);
    default:
        return false;
    }
}

bool Keyboard::tab()
{
    Direction const direction = isHeld(VK_SHIFT) ? Direction::Backward : Direction::Forward;
    FormControl* const next = nextInTabOrder(m_form.controls(), m_form.focus().active(), direction);
    if (!next)
        return false;
    next->focus();
    m_form.focus().update();
    return true;
}

bool Keyboard::arrow(WPARAM key)
{
    FormControl* const active = m_form.focus().active();
    if (!active)
        return false;
    Direction const direction = key == VK_LEFT || key == VK_UP ? Direction::Backward : Direction::Forward;
    FormControl* const next = nextOption(m_form.controls(), *active, direction);
    if (!next)
        return false;
    next->focus();
    next->choose();
    m_form.focus().update();
    return true;
}

bool Keyboard::press(FormControl* button, WPARAM key)
{
    if (!button)
        return false;
    button->press(key);
    return true;
}

bool Keyboard::enter()
{
    FormControl* const active = m_form.focus().active();
    if (active && active->eatsKey(VK_RETURN))
        return false;
    return press(m_form.focus().shownDefault(), VK_RETURN);
}

bool Keyboard::accessKey(MSG const& message)
{
    std::vector<FormControl*> order = tabOrder(m_form.controls());
    // From the control behind the active one on, so that controls that share a key take turns.
    auto const active = std::find(order.begin(), order.end(), m_form.focus().active());
    if (active != order.end())
        std::rotate(order.begin(), active + 1, order.end());
    for (FormControl* const control : order)
        if (control->isShown() && control->isEnabled() && control->ownsAccessKey(message)) {
            runAccessKey(*control, message);
            return true;
        }
    return false;
}

void Keyboard::runAccessKey(FormControl& control, MSG const& message)
{
    FormControl* target = &control;
    if (!control.takesFocus()) {
        // A label or a frame speaks for the control that follows it.
        target = nextInTabOrder(m_form.controls(), &control, Direction::Forward);
        if (!target)
            return;
    }
    if (target != m_form.focus().active())
        target->focus();
    m_form.focus().update();
    control.runAccessKey(message);
}

} // namespace quillet::gallery

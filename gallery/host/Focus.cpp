// Which control of a form is the active one, and which button is the one that Enter presses.
#include "gallery/host/Focus.h"

#include "gallery/host/Form.h"
#include "gallery/host/TabOrder.h"

#include <utility>

namespace quillet::gallery {

namespace {

template <class Predicate> FormControl* firstWorking(Form const& form, Predicate&& predicate) noexcept
{
    for (auto const& control : form.controls())
        if (predicate(control->state()) && control->actsLikeButton() && control->isShown() &&
            control->isEnabled())
            return control.get();
    return nullptr;
}

} // namespace

FormControl* Focus::active() const noexcept
{
    // Asked of Windows first: a control that is just getting the focus asks before it has told the form.
    if (m_isOver)
        return nullptr;
    HWND const window = ::GetFocus();
    if (m_active && window && (window == m_active->window() || ::IsChild(m_active->window(), window)))
        return m_active; // asked for at every paint of a button, so not looked for among all each time
    FormControl* const focused = m_form.controlOf(window);
    return focused ? focused : m_active;
}

FormControl* Focus::defaultButton() const noexcept
{
    return firstWorking(m_form, [](ExtenderState const& state) { return state.isDefault; });
}

FormControl* Focus::cancelButton() const noexcept
{
    return firstWorking(m_form, [](ExtenderState const& state) { return state.isCancel; });
}

FormControl* Focus::shownDefault() const noexcept
{
    FormControl* const current = active();
    return current && current->actsLikeButton() ? current : defaultButton();
}

void Focus::update()
{
    if (m_isOver || m_form.isDesign())
        return;
    FormControl* const before = std::exchange(m_active, active());
    if (before && before != m_active)
        before->focusLost();
    FormControl* const shownBefore = std::exchange(m_shownDefault, shownDefault());
    if (shownBefore == m_shownDefault)
        return;
    FormControl* const shownNow = m_shownDefault;
    if (shownBefore)
        shownBefore->showDefaultChanged();
    if (shownNow)
        shownNow->showDefaultChanged();
}

void Focus::restore()
{
    if (m_isOver || m_form.isDesign())
        return;
    if (m_active && m_active->isShown() && m_active->isEnabled())
        m_active->focus();
    else if (FormControl* const first = nextInTabOrder(m_form.controls(), nullptr, Direction::Forward))
        first->focus();
}

void Focus::forget() noexcept
{
    m_isOver = true;
    m_active = nullptr;
    m_shownDefault = nullptr;
}

} // namespace quillet::gallery

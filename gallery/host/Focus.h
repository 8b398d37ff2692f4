// Which control of a form is the active one, and which button is the one that Enter presses.
#pragma once

namespace quillet::gallery {

class Form;
class FormControl;

class Focus {
public:
    explicit Focus(Form& form) noexcept : m_form(form) {}

    /// The control that has the focus or, while the form is not active, had it last; null when none had.
    FormControl* active() const noexcept;
    /// The form's default and cancel button; null when it has none that works at present.
    FormControl* defaultButton() const noexcept;
    FormControl* cancelButton() const noexcept;
    /// The button to show as the one that Enter presses: the active one, else the default button.
    FormControl* shownDefault() const noexcept;

    /// Call whenever the focus may have moved: tells the controls that this concerns.
    void update();
    /// Gives the focus back to the active control, or to the first in the tab order.
    void restore();
    /// The form is closing: nobody is told any more.
    void forget() noexcept;

private:
    Form& m_form;
    FormControl* m_active = nullptr;
    FormControl* m_shownDefault = nullptr;
    bool m_isOver = false;
};

} // namespace quillet::gallery

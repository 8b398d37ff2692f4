// The keyboard's rules of a form: Tab, arrows, Enter, Esc and access keys.
#pragma once

#include <windows.h>

namespace quillet::gallery {

class Form;
class FormControl;

class Keyboard {
public:
    explicit Keyboard(Form& form) noexcept : m_form(form) {}

    /// A key message on its way to a window of the form: the active control's first, then the form's.
    /// True when nobody else is to see it.
    bool translate(MSG& message);
    /// A key that the active control offers to its container.
    bool offered(MSG const& message);

private:
    bool keyDown(WPARAM key);
    bool tab();
    bool arrow(WPARAM key);
    bool press(FormControl* button, WPARAM key);
    bool enter();
    bool accessKey(MSG const& message);
    void runAccessKey(FormControl& control, MSG const& message);

    Form& m_form;
};

} // namespace quillet::gallery

// What a sink may do to the control that just told it something.
#pragma once

#include "Button.h"

namespace quillet::input {

/// A thing to be done inside an event, by the name that tests show.
struct Deed {
    char const* name;
    void (*act)(FormButton& button);
};

/// Everything from a lost reference to a destroyed form.
std::vector<Deed> const& deeds();

/// Something that a user does, and the event in which the deed is done.
struct Occasion {
    char const* event;
    void (*provoke)(FormButton& button);
};

std::vector<Occasion> const& occasions();

} // namespace quillet::input

// The order in which Tab and the arrow keys visit the controls of a form.
#pragma once

#include <memory>
#include <vector>

namespace quillet::gallery {

class FormControl;

enum class Direction { Forward, Backward };

/// All controls by their tab index; equal ones in the order of the form file.
std::vector<FormControl*> tabOrder(std::vector<std::unique_ptr<FormControl>> const& controls);

/// The control that Tab moves to, round the end of the order; from nothing, the first or the last.
/// Null when no control can be tabbed to.
FormControl* nextInTabOrder(std::vector<std::unique_ptr<FormControl>> const& controls,
                            FormControl const* from, Direction direction);

/// The option button of the same class and container that an arrow key moves to; from itself when it is
/// alone. Null when from is no option button.
FormControl* nextOption(std::vector<std::unique_ptr<FormControl>> const& controls, FormControl const& from,
                        Direction direction);

} // namespace quillet::gallery

// What the gallery does in place of a form's code, which it does not run.
#pragma once

namespace quillet::gallery {

class FormControl;

/// One choice among the check buttons of a control array: the clicked one is checked, the others are not. The
/// control that its Tag names is shown, and those that the others' name are hidden. Nothing happens for any
/// other control.
void choose(FormControl& clicked);

/// The second release of a double click turns a check button over and is no click: the choice stays.
void keepChoice(FormControl& released);

} // namespace quillet::gallery

// An event as a line of text.
#pragma once

#include "gallery/host/Form.h"

#include <string>

namespace quillet::gallery {

/// Who raised it and what: cmdSave.Click, or tabs(2).Click for a control of a control array.
std::wstring eventName(FormEvent const& event);

/// The same with its arguments, if it has any: cmdSave.MouseDown(1, 0, 120, 90). Text stands in quotes.
std::wstring eventText(FormEvent const& event);

} // namespace quillet::gallery

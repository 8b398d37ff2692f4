// What counterparts do to a control in the middle of a call of its.
#pragma once

#include "Life.h"

#include <vector>

namespace quillet::hostile {

std::vector<Deed> const& deeds();

} // namespace quillet::hostile

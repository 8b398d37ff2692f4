// The objects that stand in for the system's, counted.
#pragma once

#include "platform/FontObject.h"
#include "platform/PlainObject.h"

namespace quillet::fuzz {

/// How many objects there are. None may be left when an input is done with.
inline int livingObjects() noexcept { return FontObject::living() + PlainObject::living(); }

} // namespace quillet::fuzz

// What a control would save, and what must hold of every load.
#pragma once

#include "Life.h"
#include "kit/Memory.h"

#include <functional>

namespace quillet::hostile {

/// The bytes that the control saves now; empty when it cannot.
kit::Bytes savedForm(Life& life);

/// Loads: after a failure the control saves what it would have saved before; after a success it can be drawn
/// and saved, and another control of its class that loads that saves the same again. Answers the load's
/// result.
HRESULT expectWholeLoad(Life& life, Life& other, std::function<HRESULT()> const& load);

} // namespace quillet::hostile

// Saved data: what a control would save, damaged and forged in every way, and what must hold of every load.
#pragma once

#include "Life.h"
#include "World.h"
#include "kit/Memory.h"

#include <functional>
#include <string>

namespace quillet::hostile {

/// The bytes that the control saves now; empty when it cannot.
kit::Bytes savedForm(Life& life);

/// Loads: after a failure the control saves what it would have saved before; after a success it can be drawn
/// and saved, and another control of its class that loads that saves the same again. Answers the load's
/// result.
HRESULT expectWholeLoad(Life& life, Life& other, std::function<HRESULT()> const& load);

/// The bytes with one to three kinds of damage, which the text names.
kit::Bytes damaged(kit::Bytes bytes, Random& random, std::string& how);

std::string hexadecimal(kit::Bytes const& bytes);

} // namespace quillet::hostile

// Saved data damaged at random, in every way that data gets damaged or forged.
#pragma once

#include "World.h"
#include "kit/Memory.h"

#include <string>

namespace quillet::hostile {

/// The bytes with one to three kinds of damage, which the text names.
kit::Bytes damaged(kit::Bytes bytes, Random& random, std::string& how);

std::string hexadecimal(kit::Bytes const& bytes);

} // namespace quillet::hostile

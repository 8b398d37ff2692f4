// Reads from a library's bytes what the system's interfaces do not tell: the names of setters' parameters.
#pragma once

#include <string>
#include <vector>

namespace quillet {

/// For each function of one type description, in its order: the name of its last parameter, empty for none.
std::vector<std::string> lastParameterNames(std::size_t typeIndex);

} // namespace quillet

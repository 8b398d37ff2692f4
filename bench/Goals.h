// What the figures have to reach.
#pragma once

#include "bench/Bench.h"

#include <string>

namespace quillet::bench {

/// A row's goal as it is to be read; a dash where it has none.
std::string goalText(Row const& row);
bool isShortOfGoal(Row const& row);

/// The ratio, or the figure that the goal is about, as it is to be read.
std::string figureText(double value, Unit unit);
std::string ratioText(double ratio);

} // namespace quillet::bench

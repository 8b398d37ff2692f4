// What is measured, and the row of the table that each measurement gives.
#pragma once

#include "kit/Library.h"

#include <string>
#include <vector>

namespace quillet::bench {

/// One line of the table. Texts are as they are to be read, with their units.
struct Row {
    std::string what;
    std::string ours;  ///< the library's median
    std::string floor; ///< the median of what it is compared with
    std::string ratio; ///< the median of the rounds' ratios
    std::string goal;
};
using Rows = std::vector<Row>;

/// How much is run: enough for figures, or just enough to see that everything works.
enum class Effort { Full, Smoke };

// Each throws std::runtime_error when what it measures does not do what it is measured at.
Rows measurePaint(kit::Library const& library, Effort effort);
Rows measurePictures(kit::Library const& library, Effort effort);
Rows measureMouse(kit::Library const& library, Effort effort);
Rows measureFocus(kit::Library const& library, Effort effort);
Rows measureCreation(kit::Library const& library, Effort effort);
Rows measureMembers(kit::Library const& library, Effort effort);
Rows measureFills(kit::Library const& library, Effort effort);
Rows measureOptions(kit::Library const& library, Effort effort);
Rows measureSaving(kit::Library const& library, Effort effort);
Rows measureFootprint(kit::Library const& library, Effort effort);
Rows measureSize(kit::Library const& library, Effort effort);

} // namespace quillet::bench

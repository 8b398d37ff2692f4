// What is measured, and the row of the table that each measurement gives.
#pragma once

#include "kit/Library.h"

#include <string>
#include <vector>

namespace quillet::bench {

/// Medians over the rounds of two things that were measured in turns.
struct Comparison {
    double ours;
    double floor;
    double ratio; ///< of the rounds' own ratios, not of the two medians
};

/// Stands for a figure that a row does not have.
constexpr double kNone = -1;

enum class Unit { Microseconds, Count, Kilobytes };

/// One line of the table. What it has to reach stands with the other goals.
struct Row {
    std::string what;
    Comparison measured;
    Unit unit = Unit::Microseconds;
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
Rows measureForms(kit::Library const& library, Effort effort);
Rows measureMembers(kit::Library const& library, Effort effort);
Rows measureFills(kit::Library const& library, Effort effort);
Rows measureOptions(kit::Library const& library, Effort effort);
Rows measureSaving(kit::Library const& library, Effort effort);
Rows measureFootprint(kit::Library const& library, Effort effort);
Rows measureSize(kit::Library const& library, Effort effort);

/// One button made, shown and painted, ours and one of the system's, for whoever counts what that asks of the
/// window server. Looks for an atom before and after each: a request of its own, which tells in the server's
/// list of requests where it begins ("bench: ours", "bench: floor") and ends ("bench: end").
void makeWhatIsCounted(kit::Library const& library);

} // namespace quillet::bench

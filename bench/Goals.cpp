// What the figures have to reach: all goals in one table.
#include "bench/Goals.h"

#include "bench/Rounds.h"

#include <string_view>

namespace quillet::bench {

namespace {

enum class Bound { Ratio, Ours };

struct Goal {
    std::string_view what; ///< the beginning of its rows
    Bound bound;
    double most;
};

constexpr bool kIs32Bits = sizeof(void*) == 4;

constexpr Goal kGoals[] = {
    {"growth of GDI places", Bound::Ours, 16}, // the system's caches breathe a little
    {"one paint, ", Bound::Ratio, 1.05},
    {"mouse enters and leaves, a lean follower", Bound::Ratio, 1.10},
    {"one of 100 buttons made, shown and painted", Bound::Ratio, 1.20},
    {"one of 1000 buttons made, shown and painted", Bound::Ratio, 1.20},
    {"one of 100 buttons taken away", Bound::Ratio, 1.10},
    {"one of 1000 buttons taken away", Bound::Ratio, 1.10},
    {"a property written through the interface", Bound::Ours, 0.030},
    {"a button loaded from", Bound::Ratio, 5},
    {"a button saved into", Bound::Ratio, 5},
    {"size of quilbt.ocx", Bound::Ours, kIs32Bits ? 330 : 300},
    {"quilbt.ocx loaded and unloaded", Bound::Ratio, 1.3},
};

Goal const* goalOf(Row const& row)
{
    for (Goal const& goal : kGoals)
        if (row.what.starts_with(goal.what))
            return &goal;
    return nullptr;
}

} // namespace

std::string figureText(double value, Unit unit)
{
    if (value == kNone)
        return "–";
    switch (unit) {
    case Unit::Microseconds:
        return durationText(value);
    case Unit::Count:
        return fixedText(value, 0);
    case Unit::Kilobytes:
        return fixedText(value, 0) + " KB";
    }
    return {};
}

std::string ratioText(double ratio) { return ratio == kNone ? "–" : fixedText(ratio, 2); }

std::string goalText(Row const& row)
{
    Goal const* const goal = goalOf(row);
    if (!goal)
        return "–";
    return "≤ " + (goal->bound == Bound::Ratio ? ratioText(goal->most) : figureText(goal->most, row.unit));
}

bool isShortOfGoal(Row const& row)
{
    Goal const* const goal = goalOf(row);
    return goal && (goal->bound == Bound::Ratio ? row.measured.ratio : row.measured.ours) > goal->most;
}

} // namespace quillet::bench

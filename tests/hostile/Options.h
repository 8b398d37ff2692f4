// How long and from which seed the room's random runs go.
#pragma once

#include <cstddef>

namespace quillet::hostile {

struct Options {
    unsigned seed = 20261121; ///< the same in every plain test run
    int runs = 0;             ///< of each kind of random run; 0 for the few of a plain test run
    bool isLong() const noexcept { return runs > 0; }
    /// How many runs to make where a plain test run makes so many.
    int runsOr(int plain) const noexcept { return isLong() ? runs : plain; }
};

/// Whether the next row of a long table is to be run: every one in the long form, else one of so many, which
/// depends on the seed.
bool isDue(std::size_t every) noexcept;

/// The command line's, once the program has begun.
Options& options() noexcept;

} // namespace quillet::hostile

// How the room runs: how long and from which seed, and what it is doing, told when it fails, crashes or
// hangs.
#pragma once

#include <cstddef>
#include <string>

namespace quillet::hostile {

/// One for the process: a crash or a hang is told from outside the run.
class Journal {
public:
    /// A new run: its steps so far are forgotten, and it has some seconds from now on.
    static void begin(std::string const& title);
    static void step(std::string const& text);
    /// No run goes on: nothing is awaited.
    static void end();
    /// How many runs have begun.
    static int runs();
    /// The run's title and its steps so far.
    static std::string text();

    /// For the start of the program: from here on crashes and hangs are told, and end it.
    static void watch();
};

/// How long and from which seed the random runs go.
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

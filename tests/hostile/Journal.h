// What a run is doing: told when it fails, crashes or hangs.
#pragma once

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

} // namespace quillet::hostile

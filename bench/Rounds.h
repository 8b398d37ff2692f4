// Two things timed in turns within one run, so that what slows the machine down slows both.
#pragma once

#include "bench/Bench.h"

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace quillet::bench {

/// Medians over the rounds.
struct Comparison {
    double ours;  ///< microseconds of one call
    double floor; ///< microseconds of one call
    double ratio; ///< of the rounds' own ratios, not of the two medians
};

/// Collects a comparison's rounds: the microseconds of ours and of the floor in each.
class Rounds {
public:
    void add(double ours, double floor);
    Comparison result() const;

private:
    std::vector<double> m_ours;
    std::vector<double> m_floor;
    std::vector<double> m_ratios;
};

/// Microseconds that a body takes.
double microsecondsOf(std::function<void()> const& body);

/// A body that times a part of itself: what prepares it is not counted. Answers microseconds.
using TimedBody = std::function<double()>;
Comparison compareTimed(int rounds, TimedBody const& ours, TimedBody const& floor,
                        std::function<void()> const& settle = {});

/// In each round times a number of calls of ours and as many of the floor; which goes first changes from
/// round to round. Afterwards, untimed, runs settle if there is one.
Comparison compare(int rounds, int calls, std::function<void()> const& ours,
                   std::function<void()> const& floor, std::function<void()> const& settle = {});

Row rowOf(std::string what, Comparison const& comparison, std::string goal);

/// A duration in the unit that reads best.
std::string durationText(double microseconds);

/// Throws std::runtime_error with the text unless it holds.
void require(bool holds, char const* otherwise);

/// Puts the cursor there without letting its own message through, and tells the window by one of ours: what
/// is timed begins with the message, not with the system's way of finding out who gets it.
/// Answers microseconds.
double movedTo(HWND window, POINT at);

} // namespace quillet::bench

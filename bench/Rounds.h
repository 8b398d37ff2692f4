// Two things timed in turns within one run, so that what slows the machine down slows both.
#pragma once

#include "bench/Bench.h"

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace quillet::bench {

/// Collects a comparison's rounds: the microseconds of ours and of the floor in each. There are as many as a
/// few seconds have room for, within bounds.
class Rounds {
public:
    explicit Rounds(Effort effort);

    bool wantsMore() const;
    /// Which of the two goes first changes from round to round.
    bool oursIsFirst() const noexcept { return m_ratios.size() % 2 == 0; }
    void add(double ours, double floor);
    Comparison result() const;

private:
    Effort m_effort;
    double m_begun;
    std::vector<double> m_ours;
    std::vector<double> m_floor;
    std::vector<double> m_ratios;
};

/// Microseconds that a body takes.
double microsecondsOf(std::function<void()> const& body);

/// A body that times a part of itself: what prepares it is not counted. Answers microseconds.
using TimedBody = std::function<double()>;
/// After each round, untimed, runs settle if there is one.
Comparison compareTimed(Effort effort, TimedBody const& ours, TimedBody const& floor,
                        std::function<void()> const& settle = {});

/// In each round times a number of calls of ours and as many of the floor: so many that a round is long
/// beside the clock's steps.
Comparison compare(Effort effort, int calls, std::function<void()> const& ours,
                   std::function<void()> const& floor, std::function<void()> const& settle = {});

/// A duration in the unit that reads best.
std::string durationText(double microseconds);
std::string fixedText(double value, int decimals);

/// Throws std::runtime_error with the text unless it holds.
void require(bool holds, char const* otherwise);

/// Puts the cursor there without letting its own message through, and tells the window by one of ours: what
/// is timed begins with the message, not with the system's way of finding out who gets it.
/// Answers microseconds.
double movedTo(HWND window, POINT at);

} // namespace quillet::bench

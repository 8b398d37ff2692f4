// Two things timed in turns within one run, so that what slows the machine down slows both.
#include "bench/Rounds.h"

#include "kit/Pump.h"

#include <windows.h>

#include <algorithm>
#include <iomanip>
#include <sstream>
#include <stdexcept>
#include <utility>
#include <vector>

namespace quillet::bench {

namespace {

double microsecondsNow()
{
    LARGE_INTEGER frequency;
    LARGE_INTEGER ticks;
    ::QueryPerformanceFrequency(&frequency);
    ::QueryPerformanceCounter(&ticks);
    return static_cast<double>(ticks.QuadPart) * 1e6 / static_cast<double>(frequency.QuadPart);
}

double medianOf(std::vector<double> values)
{
    auto const middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

constexpr std::size_t kFewest = 5;
constexpr std::size_t kMost = 1001;
constexpr double kSpan = 2.5e6; // microseconds for one figure

} // namespace

double microsecondsOf(std::function<void()> const& body)
{
    double const start = microsecondsNow();
    body();
    return microsecondsNow() - start;
}

std::string fixedText(double value, int decimals)
{
    std::ostringstream text;
    text << std::fixed << std::setprecision(decimals) << value;
    return text.str();
}

Rounds::Rounds(Effort effort) : m_effort(effort), m_begun(microsecondsNow()) {}

bool Rounds::wantsMore() const
{
    std::size_t const done = m_ratios.size();
    if (m_effort == Effort::Smoke)
        return done < 2;
    return done < kFewest || (done < kMost && microsecondsNow() < m_begun + kSpan);
}

void Rounds::add(double ours, double floor)
{
    m_ours.push_back(ours);
    m_floor.push_back(floor);
    m_ratios.push_back(ours / floor);
}

Comparison Rounds::result() const { return {medianOf(m_ours), medianOf(m_floor), medianOf(m_ratios)}; }

Comparison compareTimed(Effort effort, TimedBody const& ours, TimedBody const& floor,
                        std::function<void()> const& settle)
{
    Rounds rounds(effort);
    while (rounds.wantsMore()) {
        bool const oursFirst = rounds.oursIsFirst();
        double const first = oursFirst ? ours() : floor();
        double const second = oursFirst ? floor() : ours();
        rounds.add(oursFirst ? first : second, oursFirst ? second : first);
        if (settle)
            settle();
    }
    return rounds.result();
}

Comparison compare(Effort effort, int calls, std::function<void()> const& ours,
                   std::function<void()> const& floor, std::function<void()> const& settle)
{
    auto const repeated = [calls](std::function<void()> const& body) {
        return [calls, &body] {
            return microsecondsOf([&] {
                       for (int i = 0; i < calls; ++i)
                           body();
                   }) /
                   calls;
        };
    };
    return compareTimed(effort, repeated(ours), repeated(floor), settle);
}

std::string durationText(double microseconds)
{
    if (microseconds < 1)
        return fixedText(microseconds * 1000, 0) + " ns";
    if (microseconds < 1000)
        return fixedText(microseconds, 1) + " µs";
    return fixedText(microseconds / 1000, 1) + " ms";
}

void require(bool holds, char const* otherwise)
{
    if (!holds)
        throw std::runtime_error(otherwise);
}

double movedTo(HWND window, POINT at)
{
    POINT screen = at;
    ::ClientToScreen(window, &screen);
    ::SetCursorPos(screen.x, screen.y);
    double const taken =
        microsecondsOf([&] { ::SendMessageW(window, WM_MOUSEMOVE, 0, MAKELPARAM(at.x, at.y)); });
    kit::pumpPending();
    return taken;
}

} // namespace quillet::bench

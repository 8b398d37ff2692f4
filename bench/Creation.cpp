// Buttons created, loaded and activated by the thousand, and closed and released, against as many of the
// system's.
#include "bench/CrowdedForm.h"
#include "bench/Rounds.h"
#include "kit/Pump.h"

#include <vector>

namespace quillet::bench {

namespace {

/// What a form's buttons take, for one button.
struct Life {
    double made;   ///< until the last one is shown; ours have painted themselves then
    double opened; ///< until no paint is left to do, theirs neither
    double gone;
};

template <class Buttons> Life lifeOf(Buttons& buttons, int count)
{
    double const made = microsecondsOf([&] { buttons.add(count); });
    double const painted = microsecondsOf([] { kit::pumpPending(); });
    double const gone = microsecondsOf([&] { buttons.clear(); });
    kit::pumpPending();
    return {made / count, (made + painted) / count, gone / count};
}

Rows measureCrowd(kit::Library const& library, int count, Effort effort)
{
    Places const places = Places::of(count);
    CrowdedForm ours(library, places, 0);
    SystemButtons systems(ours.window(), places, 0);
    Rounds made(effort);
    Rounds opened(effort);
    Rounds gone(effort);
    while (opened.wantsMore()) {
        bool const oursFirst = opened.oursIsFirst();
        Life const first = oursFirst ? lifeOf(ours, count) : lifeOf(systems, count);
        Life const second = oursFirst ? lifeOf(systems, count) : lifeOf(ours, count);
        Life const& own = oursFirst ? first : second;
        Life const& floor = oursFirst ? second : first;
        made.add(own.made, floor.made);
        opened.add(own.opened, floor.opened);
        gone.add(own.gone, floor.gone);
    }
    std::string const one = "one of " + std::to_string(count) + " buttons ";
    return {{one + "made and shown", made.result()},
            {one + "made, shown and painted", opened.result()},
            {one + "taken away", gone.result()}};
}

} // namespace

Rows measureCreation(kit::Library const& library, Effort effort)
{
    std::vector<int> const full = {10, 100, 1000, 5000};
    std::vector<int> const smoke = {10};
    Rows rows;
    for (int const count : effort == Effort::Full ? full : smoke)
        for (Row& row : measureCrowd(library, count, effort))
            rows.push_back(std::move(row));
    return rows;
}

} // namespace quillet::bench

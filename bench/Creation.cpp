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
    double opened; ///< until no paint is left to do
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

Rows measureForm(kit::Library const& library, int count, int rounds)
{
    CrowdedForm ours(library);
    SystemButtons systems(ours.window());
    Rounds made;
    Rounds opened;
    Rounds gone;
    for (int round = 0; round < rounds; ++round) {
        bool const oursFirst = round % 2 == 0;
        Life const first = oursFirst ? lifeOf(ours, count) : lifeOf(systems, count);
        Life const second = oursFirst ? lifeOf(systems, count) : lifeOf(ours, count);
        Life const& own = oursFirst ? first : second;
        Life const& floor = oursFirst ? second : first;
        made.add(own.made, floor.made);
        opened.add(own.opened, floor.opened);
        gone.add(own.gone, floor.gone);
    }
    std::string const one = "one of " + std::to_string(count) + " buttons ";
    return {rowOf(one + "made and shown", made.result(), "–"),
            rowOf(one + "made, shown and all painted", opened.result(), "–"),
            rowOf(one + "taken away", gone.result(), "–")};
}

} // namespace

Rows measureCreation(kit::Library const& library, Effort effort)
{
    struct Size {
        int buttons;
        int rounds;
    };
    std::vector<Size> const full = {{10, 51}, {100, 11}, {1000, 5}, {5000, 1}};
    std::vector<Size> const smoke = {{10, 3}};
    Rows rows;
    for (Size const& size : effort == Effort::Full ? full : smoke)
        for (Row& row : measureForm(library, size.buttons, size.rounds))
            rows.push_back(std::move(row));
    return rows;
}

} // namespace quillet::bench

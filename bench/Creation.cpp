// Buttons created, loaded and activated by the thousand, and closed and released, against as many of the
// system's.
#include "bench/CrowdedForm.h"
#include "bench/Rounds.h"
#include "bench/SystemButtons.h"
#include "kit/Pump.h"

#include <vector>

namespace quillet::bench {

namespace {

/// The times of making a form's buttons and of taking them away again, for one button.
struct Life {
    double made;
    double gone;
};

template <class Buttons> Life lifeOf(Buttons& buttons, int count)
{
    double const made = microsecondsOf([&] { buttons.add(count); });
    kit::pumpPending(); // they paint themselves
    double const gone = microsecondsOf([&] { buttons.clear(); });
    kit::pumpPending();
    return {made / count, gone / count};
}

Rows measureForm(kit::Library const& library, int count, int rounds)
{
    CrowdedForm ours(library);
    SystemButtons systems(ours.window());
    Rounds made;
    Rounds gone;
    for (int round = 0; round < rounds; ++round) {
        bool const oursFirst = round % 2 == 0;
        Life const first = oursFirst ? lifeOf(ours, count) : lifeOf(systems, count);
        Life const second = oursFirst ? lifeOf(systems, count) : lifeOf(ours, count);
        made.add(oursFirst ? first.made : second.made, oursFirst ? second.made : first.made);
        gone.add(oursFirst ? first.gone : second.gone, oursFirst ? second.gone : first.gone);
    }
    std::string const one = "one of " + std::to_string(count) + " buttons ";
    return {rowOf(one + "made and shown", made.result(), "–"), rowOf(one + "taken away", gone.result(), "–")};
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

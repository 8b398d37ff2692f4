// The focus moving from one button of a form to the next, on forms of more and more buttons.
#include "bench/CrowdedForm.h"
#include "bench/Rounds.h"
#include "bench/ShownButton.h"
#include "kit/Input.h"
#include "kit/Pump.h"

namespace quillet::bench {

namespace {

/// Every button of the form paints itself when one loses the focus and when one gets it, and those two once
/// more at once.
constexpr int paintsOf(int buttons) { return 2 * buttons + 2; }

Row measureChange(kit::Library const& library, int buttons, Effort effort)
{
    CrowdedForm form(library, Places::of(buttons), buttons);
    form.joinAsSiblings();
    std::vector<BarePainter> painters;
    for (int i = 0; i < buttons; ++i)
        painters.push_back(form.barePainterOf(i));
    BareLook const look = ShownButton(library).bareLook(Look::Normal);
    require(kit::moveCursorAway() && kit::focus(form.windowOf(0)), "the focus does not move");
    kit::pumpPending();

    int next = 0;
    auto const ours = [&] {
        next = 1 - next;
        double const taken = microsecondsOf([&] { ::SetFocus(form.windowOf(next)); });
        require(::GetFocus() == form.windowOf(next), "the focus does not move");
        return taken;
    };
    auto const floor = [&] {
        return microsecondsOf([&] {
            for (int i = 0; i < paintsOf(buttons); ++i)
                painters[static_cast<std::size_t>(i % buttons)].paint(look);
        });
    };
    return {"focus change on a form of " + std::to_string(buttons) + ", as many bare paints",
            compareTimed(effort, ours, floor)};
}

} // namespace

Rows measureFocus(kit::Library const& library, Effort effort)
{
    if (effort == Effort::Smoke)
        return {measureChange(library, 10, effort)};
    return {measureChange(library, 10, effort), measureChange(library, 100, effort),
            measureChange(library, 1000, effort)};
}

} // namespace quillet::bench

// What a user feels of a form: a hundred mixed controls opened, closed, uncovered, moved, resized, walked
// through with the Tab key.
#include "bench/MixedForms.h"
#include "bench/Rounds.h"
#include "kit/Input.h"
#include "kit/Pump.h"

#include <functional>

namespace quillet::bench {

namespace {

/// Something done to a form, until nothing is left to paint.
double done(std::function<void()> const& deed)
{
    return microsecondsOf([&] {
        deed();
        kit::pumpPending();
    });
}

/// The form is made in hiding, as programs do.
double opened(MixedForm& form)
{
    ::ShowWindow(form.window(), SW_HIDE);
    form.empty();
    kit::pumpPending();
    return done([&] {
        form.fill();
        ::ShowWindow(form.window(), SW_SHOWNOACTIVATE);
    });
}

double uncovered(MixedForm& form)
{
    return done([&] {
        ::RedrawWindow(form.window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    });
}

/// Each control by itself to its place, changed so much.
double placed(MixedForm& form, SIZE shift, SIZE growth)
{
    return done([&] {
        for (int i = 0; i < MixedForm::kControls; ++i) {
            RECT at = MixedForm::kPlaces.at(i);
            ::OffsetRect(&at, shift.cx, shift.cy);
            form.place(i, {at.left, at.top, at.right + growth.cx, at.bottom + growth.cy});
        }
    });
}
double moved(MixedForm& form) { return placed(form, {3, 3}, {0, 0}) + placed(form, {0, 0}, {0, 0}); }
double resized(MixedForm& form) { return placed(form, {0, 0}, {-3, -3}) + placed(form, {0, 0}, {0, 0}); }

/// The focus given to one control after the other, as a container does at the Tab key.
double walked(MixedForm& form)
{
    return done([&] {
        for (int i = 0; i < MixedForm::kControls; ++i) {
            ::SetFocus(form.focusWindow(i));
            kit::pumpPending();
        }
    });
}

struct DeedRow {
    char const* what;
    double (*deed)(MixedForm&);
};
constexpr DeedRow kDeeds[] = {
    {"a form of 100 mixed controls opened", &opened},
    {"the same form uncovered", &uncovered},
    {"the same form, each control moved and moved back", &moved},
    {"the same form, each control resized and back", &resized},
    {"the same form, Tab through all", &walked},
};

} // namespace

Rows measureForms(kit::Library const& library, Effort effort)
{
    OurMixedForm ours(library);
    SystemMixedForm systems;
    require(kit::moveCursorAway(), "the cursor does not move");
    Rows rows;
    for (DeedRow const& row : kDeeds) {
        // Each form is on top of the other while it is at work.
        auto const onTop = [&](MixedForm& form) {
            return [&form, &row] {
                ::SetWindowPos(form.window(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
                ::SetFocus(form.window());
                kit::pumpPending();
                return row.deed(form);
            };
        };
        rows.push_back({row.what, compareTimed(effort, onTop(ours), onTop(systems))});
    }
    ours.empty();
    return rows;
}

} // namespace quillet::bench

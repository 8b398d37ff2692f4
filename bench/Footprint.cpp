// What one button holds while it is shown: memory and windows.
#include "bench/Bench.h"
#include "bench/CrowdedForm.h"
#include "kit/Pump.h"
#include "kit/Usage.h"

#include <functional>

namespace quillet::bench {

namespace {

struct Held {
    double bytes;
    double windows;
};

/// What so many objects hold, for one of them.
Held heldBy(int count, std::function<void()> const& make)
{
    kit::pumpPending();
    auto const before = kit::Usage::now();
    make();
    kit::pumpPending();
    auto const after = kit::Usage::now();
    auto const each = [count](auto more) { return static_cast<double>(more) / count; };
    return {each(after.bytes - before.bytes), each(after.windows - before.windows)};
}

} // namespace

Rows measureFootprint(kit::Library const& library, Effort effort)
{
    int const count = effort == Effort::Full ? 1000 : 20;
    Places const places = Places::of(count + 1);
    CrowdedForm form(library, places, 1); // the first one also pays for what all share
    Held const ours = heldBy(count, [&] { form.add(count); });
    SystemButtons systems(form.window(), places, 1);
    Held const theirs = heldBy(count, [&] { systems.add(count); });
    return {{"heap bytes of one button", {ours.bytes, theirs.bytes, kNone}, Unit::Count},
            {"windows of one button", {ours.windows, theirs.windows, kNone}, Unit::Count}};
}

} // namespace quillet::bench

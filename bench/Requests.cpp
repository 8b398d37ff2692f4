// One button made, shown and painted, ours and one of the system's, for whoever counts what that asks of the
// window server.
#include "bench/Bench.h"
#include "bench/CrowdedForm.h"
#include "kit/Pump.h"

namespace quillet::bench {

namespace {

template <class Buttons> void makeOne(Buttons& buttons, wchar_t const* name)
{
    kit::pumpPending();
    ::GlobalFindAtomW(name);
    buttons.add(1);
    kit::pumpPending();
    ::GlobalFindAtomW(L"bench: end");
}

} // namespace

void makeWhatIsCounted(kit::Library const& library)
{
    constexpr Places kPlaces = Places::of(2);
    CrowdedForm ours(library, kPlaces, 1); // the first one also asks for what all share
    SystemButtons systems(ours.window(), kPlaces, 1);
    makeOne(ours, L"bench: ours");
    makeOne(systems, L"bench: floor");
}

} // namespace quillet::bench

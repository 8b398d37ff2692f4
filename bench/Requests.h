// One button made, shown and painted, ours and one of the system's, for whoever counts what that asks of the
// window server.
#pragma once

#include "kit/Library.h"

namespace quillet::bench {

/// Looks for an atom before and after each: a request of its own, which tells in the server's list of
/// requests where it begins ("bench: ours", "bench: floor") and ends ("bench: end").
void makeWhatIsCounted(kit::Library const& library);

} // namespace quillet::bench

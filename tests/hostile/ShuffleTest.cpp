// Calls in random orders that no container makes, on several controls at once.
#include "HostileTest.h"
#include "World.h"

namespace quillet::hostile {
namespace {

constexpr int kSteps = 60;

class HostileOrder : public HostileTest {};

TEST_F(HostileOrder, ofRandomCallsOnSeveralControlsIsLivedWith)
{
    for (int run = 0; run < options().runsOr(20); ++run) {
        unsigned const seed = options().seed + static_cast<unsigned>(run);
        Journal::begin("a run of --seed=" + std::to_string(seed) + " --runs=1");
        {
            World world(seed);
            for (int i = 0; i < kSteps; ++i)
                world.step();
        }
        expectNothingLeft();
        ASSERT_FALSE(HasFailure()) << Journal::text();
    }
}

} // namespace
} // namespace quillet::hostile

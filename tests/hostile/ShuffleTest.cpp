// Calls in random orders that no container makes, on several controls at once.
#include "HostileTest.h"
#include "World.h"

namespace quillet::hostile {
namespace {

constexpr int kSteps = 60;

// Seeds of runs that crashed, left a window or told half of an activation before the component was mended.
constexpr unsigned kOnceFailed[] = {29546998, 29547062, 29547174, 40000276, 50000180};

class HostileOrder : public HostileTest {
protected:
    static void run(unsigned seed)
    {
        Journal::begin("a run of --seed=" + std::to_string(seed) + " --runs=1");
        {
            World world(seed);
            for (int i = 0; i < kSteps; ++i)
                world.step();
        }
        expectNothingLeft();
    }
};

TEST_F(HostileOrder, ofRandomCallsOnSeveralControlsIsLivedWith)
{
    for (int i = 0; i < options().runsOr(15); ++i) {
        run(options().seed + static_cast<unsigned>(i));
        ASSERT_FALSE(HasFailure()) << Journal::text();
    }
}

TEST_F(HostileOrder, thatOnceFailedIsLivedWith)
{
    for (unsigned const seed : kOnceFailed) {
        run(seed);
        ASSERT_FALSE(HasFailure()) << Journal::text();
    }
}

} // namespace
} // namespace quillet::hostile

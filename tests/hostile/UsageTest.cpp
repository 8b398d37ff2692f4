// Nothing grows by containers that misbehave: windows, handles and memory are the same after many of them.
#include "kit/Usage.h"

#include "Deeds.h"
#include "HostileTest.h"
#include "World.h"
#include "kit/UiThread.h"

namespace quillet::hostile {
namespace {

// Far below one handle, or the smallest block, a round.
constexpr int kHandlesAtRandom = 40;
constexpr size_t kBytesAtRandom = 8192;

class HostileUsage : public HostileControlTest {};
QV_ALL_CONTROLS(HostileUsage);

TEST_P(HostileUsage, isFlatOverLivesThatEndInEveryWay)
{
    kit::onNewThread([&] {
        auto const round = [&] {
            for (size_t i = 0; i < deeds().size(); i += options().isLong() ? 1 : 6) {
                Deed const& deed = deeds()[i];
                Journal::begin(deed.name);
                Life life(kind());
                life.asksAccessibleObject = false; // some systems leave a kilobyte for each handed over
                life.arm("Event(3)", deed);        // a command button's Paint, a box's KeyPress
                life.live();
            }
        };
        round(); // until caches of the system's have what they keep
        kit::Usage const before = kit::Usage::now();
        int const rounds = options().isLong() ? 10 : 2;
        for (int i = 0; i < rounds; ++i)
            round();
        kit::Usage const after = kit::Usage::now();
        EXPECT_EQ(after.windows, before.windows);
        EXPECT_LE(after.window, before.window + kHandlesAtRandom);
        EXPECT_LE(after.gdi, before.gdi + kHandlesAtRandom);
        EXPECT_LE(after.bytes, before.bytes + kBytesAtRandom) << rounds << " rounds";
    });
}

} // namespace
} // namespace quillet::hostile

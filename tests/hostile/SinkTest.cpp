// Listeners that do something to the control in the middle of an event or a notice.
#include "Deeds.h"
#include "HostileTest.h"

namespace quillet::hostile {
namespace {

class HostileSink : public HostileControlTest {};
QV_ALL_CONTROLS(HostileSink);

TEST_P(HostileSink, thatDoesSomethingToTheControlInAnyEventIsLivedWith)
{
    std::vector<Occasion> events;
    for (auto const& [call, times] : occasionsOf(kind()))
        if (call.starts_with("Event("))
            events.push_back({call, times});
    EXPECT_THAT(events, testing::SizeIs(testing::Ge(7U)));
    liveThroughDeeds(kind(), events, 60);
}

TEST_P(HostileSink, thatDoesSomethingToTheControlInANoticeIsLivedWith)
{
    liveThroughDeeds(kind(), {{"Changed", 40}, {"ViewChanged", 40}, {"Saved", 2}, {"Closed", 2}}, 50);
}

} // namespace
} // namespace quillet::hostile

// Containers whose sites, frames, extenders and listeners fail, answer nothing, or do something to the
// control in the middle of every call of its.
#include "Deeds.h"
#include "HostileTest.h"

namespace quillet::hostile {
namespace {

struct Answer {
    char const* name;
    HRESULT result;
    bool nothing; ///< success that hands out nothing
};

constexpr Answer kAnswers[] = {
    {"E_FAIL", E_FAIL, false},   {"E_NOTIMPL", E_NOTIMPL, false}, {"E_UNEXPECTED", E_UNEXPECTED, false},
    {"S_FALSE", S_FALSE, false}, {"nothing", S_OK, true},         {"nothing and fails", E_FAIL, true},
};

constexpr size_t kAnswersTaken = 20;

void give(Answer const& answer, std::string const& call, Life& life)
{
    if (!answer.nothing || FAILED(answer.result))
        life.form.record().answer(call, answer.result);
    if (answer.nothing)
        life.form.record().answerNothing(call);
}

class HostileSite : public HostileControlTest {};
QV_ALL_CONTROLS(HostileSite);

TEST_P(HostileSite, isAskedWhatTheTablesOfThisRoomGoThrough)
{
    auto const occasions = occasionsOf(kind());
    for (char const* const expected : {"Site.GetWindow",
                                       "Site.GetWindowContext",
                                       "Site.CanInPlaceActivate",
                                       "Site.OnInPlaceActivate",
                                       "Site.OnUIActivate",
                                       "Site.OnUIDeactivate",
                                       "Site.OnInPlaceDeactivate",
                                       "Site.ShowObject",
                                       "Site.OnFocus",
                                       "Site.TranslateAccelerator",
                                       "Site.GetExtendedControl",
                                       "Site.OnControlInfoChanged",
                                       "Site.SaveObject",
                                       "Frame.SetActiveObject",
                                       "Ambient(-709)",
                                       "Ambient(-703)",
                                       "Event(4)",
                                       "Event(7)",
                                       "Event(8)",
                                       "Changed",
                                       "ViewChanged",
                                       "Saved",
                                       "Closed"})
        EXPECT_TRUE(occasions.contains(expected)) << expected;
}

TEST_P(HostileSite, thatFailsInAnyOfItsCallsIsLivedWith)
{
    for (auto const& [call, times] : occasionsOf(kind()))
        for (Answer const& answer : kAnswers) {
            if (!isDue(kAnswersTaken))
                continue;
            Journal::begin(std::string(kind().name) + ": " + call + " answers " + answer.name);
            {
                Life life(kind());
                give(answer, call, life);
                life.live();
            }
            expectNothingLeft();
            ASSERT_FALSE(HasFailure());
        }
}

TEST_P(HostileSite, thatFailsInEveryCallIsLivedWith)
{
    auto const occasions = occasionsOf(kind());
    for (Answer const& answer : kAnswers) {
        Journal::begin(std::string(kind().name) + ": everything answers " + answer.name);
        {
            Life life(kind());
            for (auto const& [call, times] : occasions)
                give(answer, call, life);
            life.live();
        }
        expectNothingLeft();
    }
}

TEST_P(HostileSite, thatDoesSomethingToTheControlInAnyOfItsCallsIsLivedWith)
{
    std::vector<Occasion> calls;
    for (auto const& [call, times] : occasionsOf(kind()))
        if (call.find('.') != std::string::npos || call.starts_with("Ambient"))
            calls.push_back({call, times});
    liveThroughDeeds(kind(), calls, 50);
}

} // namespace
} // namespace quillet::hostile

// Containers whose sites, frames, extenders and listeners fail, answer nothing, or do something to the
// control in the middle of every call of its.
#include "Deeds.h"
#include "HostileTest.h"

#include <set>

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

/// What a container is asked and told in one life of the control, each once.
std::set<std::string> occasionsOf(ControlKind const& kind)
{
    Life life(kind);
    std::set<std::string> found;
    life.form.record().whenNoted = [&](std::string const& call) {
        bool const isIdentifier = call.starts_with("Ambient(") || call.starts_with("Event(");
        size_t const details = isIdentifier ? std::string::npos : call.find('(');
        size_t const end = std::min(details, call.find(" ="));
        found.insert(call.substr(0, end));
    };
    life.live();
    return found;
}

class HostileSite : public HostileControlTest {};
QV_ALL_CONTROLS(HostileSite);

TEST_P(HostileSite, isAskedWhatTheTablesOfThisRoomGoThrough)
{
    auto const occasions = occasionsOf(kind());
    for (char const* const expected :
         {"Site.GetWindow", "Site.GetWindowContext", "Site.CanInPlaceActivate", "Site.OnInPlaceActivate",
          "Site.OnUIActivate", "Site.OnUIDeactivate", "Site.OnInPlaceDeactivate", "Site.ShowObject",
          "Site.OnFocus", "Site.TranslateAccelerator", "Site.GetExtendedControl", "Site.OnControlInfoChanged",
          "Site.SaveObject", "Frame.SetActiveObject", "Ambient(-709)", "Ambient(-703)"})
        EXPECT_TRUE(occasions.contains(expected)) << expected;
}

TEST_P(HostileSite, thatFailsInAnyOfItsCallsIsLivedWith)
{
    for (std::string const& call : occasionsOf(kind()))
        for (Answer const& answer : kAnswers) {
            Journal::begin(std::string(kind().name) + ": " + call + " answers " + answer.name);
            Life life(kind());
            if (!answer.nothing || FAILED(answer.result))
                life.form.record().answer(call, answer.result);
            if (answer.nothing)
                life.form.record().answerNothing(call);
            life.live();
            expectNothingLeft();
        }
}

TEST_P(HostileSite, thatFailsInEveryCallIsLivedWith)
{
    for (Answer const& answer : kAnswers) {
        Journal::begin(std::string(kind().name) + ": everything answers " + answer.name);
        Life life(kind());
        for (std::string const& call : occasionsOf(kind())) {
            if (!answer.nothing || FAILED(answer.result))
                life.form.record().answer(call, answer.result);
            if (answer.nothing)
                life.form.record().answerNothing(call);
        }
        life.live();
        expectNothingLeft();
    }
}

TEST_P(HostileSite, thatDoesSomethingToTheControlInAnyOfItsCallsIsLivedWith)
{
    for (std::string const& call : occasionsOf(kind()))
        for (Deed const& deed : deeds()) {
            Journal::begin(std::string(kind().name) + ": " + call + ' ' + deed.name);
            {
                Life life(kind());
                life.arm(call, deed);
                life.live();
            }
            expectNothingLeft();
        }
}

} // namespace
} // namespace quillet::hostile

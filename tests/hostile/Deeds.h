// What counterparts do to a control in the middle of a call of its.
#pragma once

#include "Life.h"

#include <map>
#include <string>
#include <vector>

namespace quillet::hostile {

std::vector<Deed> const& deeds();

/// What a container is asked and told in one undisturbed life of a control, and how often: calls without
/// their details, but "Ambient(-709)" and "Event(4)" each by itself.
std::map<std::string, int> occasionsOf(ControlKind const& kind);

/// One undisturbed occasion that deeds are done on.
struct Occasion {
    std::string name;
    int times;
};
/// Lives one life for each occasion and deed, each from the first time on or at the last few times. The long
/// form takes all of them; a plain run every so many, others for each control and each seed.
void liveThroughDeeds(ControlKind const& kind, std::vector<Occasion> const& occasions, size_t every);

} // namespace quillet::hostile

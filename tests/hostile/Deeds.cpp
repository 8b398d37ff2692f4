// What counterparts do to a control in the middle of a call of its.
#include "Deeds.h"

#include "HostileTest.h"
#include "kit/ByName.h"
#include "kit/Pump.h"

#include <algorithm>

namespace quillet::hostile {

namespace {

void closes(Life& life) { life.control.ask(&IOleObject::Close, OLECLOSE_NOSAVE); }

void takesSite(Life& life, IOleClientSite* site) { life.control.ask(&IOleObject::SetClientSite, site); }

void deactivates(Life& life) { life.control.ask(&IOleInPlaceObject::InPlaceDeactivate); }

void moveToOtherForm(Life& life)
{
    takesSite(life, &life.otherSite());
    life.control.ask(&IOleObject::DoVerb, OLEIVERB_UIACTIVATE, nullptr, &life.otherSite(), 0,
                     life.otherForm(), nullptr);
}

void put(Life& life, wchar_t const* name, Variant const& value)
{
    if (auto const object = life.as<IDispatch>())
        kit::putByName(*object.get(), name, value);
}

void call(Life& life, wchar_t const* name)
{
    if (auto const object = life.as<IDispatch>())
        kit::callByName(*object.get(), name);
}

void quickActivates(Life& life)
{
    QACONTAINER container{};
    container.cbSize = sizeof(container);
    container.pClientSite = &life.control.site();
    QACONTROL answer{};
    answer.cbSize = sizeof(answer);
    life.control.ask(&IQuickActivate::QuickActivate, &container, &answer);
}

/// Whatever window the control is in: the form, or where it waits while no container shows it.
void destroyParent(Life& life)
{
    if (HWND const own = life.control.window())
        ::DestroyWindow(::GetParent(own));
}

} // namespace

std::vector<Deed> const& deeds()
{
    static std::vector<Deed> const all = {
        {"Draws", [](Life& life) { life.draw(); }},
        {"Paints", [](Life& life) { call(life, L"Refresh"); }},
        {"Shows", [](Life& life) { life.control.doVerb(OLEIVERB_SHOW); }},
        {"ActivatesInPlace", [](Life& life) { life.control.activate(); }},
        {"ActivatesWithFocus", [](Life& life) { life.control.doVerb(OLEIVERB_UIACTIVATE); }},
        {"Hides", [](Life& life) { life.control.doVerb(OLEIVERB_HIDE); }},
        {"HidesAndShows", [](Life& life) { life.hideAndShow(); }},
        {"Resizes", [](Life& life) { life.resize(37, 19); }},
        {"ResizesToNothing", [](Life& life) { life.resize(0, 0); }},
        {"ResizesBeyondAllMeasure", [](Life& life) { life.resize(60000, 60000); }},
        {"TakesTheKeyboardAway", [](Life& life) { life.control.ask(&IOleInPlaceObject::UIDeactivate); }},
        {"Deactivates", deactivates},
        {"DeactivatesAndActivates",
         [](Life& life) {
             deactivates(life);
             life.control.doVerb(OLEIVERB_UIACTIVATE);
         }},
        {"Closes", closes},
        {"ClosesAndActivates",
         [](Life& life) {
             closes(life);
             life.control.doVerb(OLEIVERB_UIACTIVATE);
         }},
        {"TakesTheSiteAway", [](Life& life) { takesSite(life, nullptr); }},
        {"TakesTheSiteAwayAndGivesItAgain",
         [](Life& life) {
             takesSite(life, nullptr);
             takesSite(life, &life.control.site());
             life.control.activate();
         }},
        {"GivesAnotherSite", [](Life& life) { takesSite(life, &life.otherSite()); }},
        {"MovesToAnotherForm", moveToOtherForm},
        {"QuickActivates", quickActivates},
        {"Releases", [](Life& life) { life.control.release(); }},
        {"Removes", [](Life& life) { life.control.remove(); }},
        {"DestroysTheForm", [](Life& life) { ::DestroyWindow(life.form.window()); }},
        {"DestroysTheFormAndReleases",
         [](Life& life) {
             ::DestroyWindow(life.form.window());
             life.control.release();
         }},
        {"DestroysTheControlsWindow", [](Life& life) { ::DestroyWindow(life.control.window()); }},
        {"DestroysTheWindowInside", [](Life& life) { ::DestroyWindow(life.inputWindow()); }},
        {"DestroysTheParent", destroyParent},
        {"DeactivatesAndDestroysTheParent",
         [](Life& life) {
             deactivates(life);
             destroyParent(life);
         }},
        {"Unadvises", [](Life& life) { life.cutSinks(); }},
        {"AdvisesAgain", [](Life& life) { life.joinSinks(); }},
        {"Loads", [](Life& life) { life.initOrLoad(); }},
        {"Saves", [](Life& life) { life.saveAndLoad(); }},
        {"Disables", [](Life& life) { put(life, L"Enabled", Variant::ofBool(false)); }},
        {"PutsProperties", [](Life& life) { life.putProperties(); }},
        {"ChangesAmbients", [](Life& life) { life.changeAmbients(); }},
        {"Clicks", [](Life& life) { life.useMouse(); }},
        {"HandlesMessages", [](Life&) { kit::pumpPending(); }},
        {"MovesTheFocusAway", [](Life&) { ::SetFocus(nullptr); }},
        {"TakesTheCapture", [](Life& life) { ::SetCapture(life.form.window()); }},
    };
    return all;
}

std::map<std::string, int> occasionsOf(ControlKind const& kind)
{
    std::map<std::string, int> found;
    Life life(kind);
    life.heard = [&](std::string const& call) {
        bool const isIdentifier = call.starts_with("Ambient(") || call.starts_with("Event(");
        size_t const details = isIdentifier ? std::string::npos : call.find('(');
        ++found[call.substr(0, std::min(details, call.find(" =")))];
    };
    life.live();
    life.heard = nullptr;
    return found;
}

void liveThroughDeeds(ControlKind const& kind, std::vector<Occasion> const& occasions, size_t every)
{
    for (Occasion const& occasion : occasions)
        for (Deed const& deed : deeds())
            for (int const letPass : {0, std::max(0, occasion.times - 2)}) {
                if (!isDue(every * 2))
                    continue;
                HostileTest::live(kind, occasion.name + ' ' + deed.name + " after " + std::to_string(letPass),
                                  [&](Life& life) { life.arm(occasion.name, deed, letPass); });
            }
}

} // namespace quillet::hostile

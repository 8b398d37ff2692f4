// What a sink may do to the control that just told it something.
#pragma once

#include "Button.h"
#include "kit/Pump.h"

namespace quillet::input {

/// A thing to be done inside an event, by the name that tests show.
struct Deed {
    char const* name;
    void (*act)(FormButton& button);
};

/// Everything from a lost reference to a destroyed form.
inline std::vector<Deed> const& deeds()
{
    static std::vector<Deed> const all = {
        {"LastReferenceReleased", [](FormButton& button) { button.release(); }},
        {"Closed", [](FormButton& button) { button.as<IOleObject>()->Close(OLECLOSE_NOSAVE); }},
        {"Removed", [](FormButton& button) { button.remove(); }},
        {"SiteTakenAway", [](FormButton& button) { button.as<IOleObject>()->SetClientSite(nullptr); }},
        {"FormDestroyed", [](FormButton& button) { ::DestroyWindow(button.hosted().form().window()); }},
        {"OwnWindowDestroyed", [](FormButton& button) { ::DestroyWindow(button.window()); }},
        {"FormDestroyedAndRemoved",
         [](FormButton& button) {
             ::DestroyWindow(button.hosted().form().window());
             button.remove();
         }},
        {"Hidden", [](FormButton& button) { button.hosted().doVerb(OLEIVERB_HIDE); }},
        {"Deactivated", [](FormButton& button) { button.as<IOleInPlaceObject>()->InPlaceDeactivate(); }},
        {"ActivatedAgain",
         [](FormButton& button) {
             button.as<IOleInPlaceObject>()->InPlaceDeactivate();
             button.hosted().activate();
         }},
        {"Disabled", [](FormButton& button) { button->put_Enabled(VARIANT_FALSE); }},
        {"Disconnected", [](FormButton& button) { button.stopListening(); }},
        {"LoadedAgain", [](FormButton& button) { button.hosted().load(*looksBag().get()); }},
        {"FocusMovedAway", [](FormButton&) { ::SetFocus(nullptr); }},
        {"CaptureTakenAway", [](FormButton& button) { ::SetCapture(button.hosted().form().window()); }},
        {"RefreshedOnceMore",
         [](FormButton& button) {
             button.events().action = nullptr;
             button->Refresh();
         }},
        {"MessagesHandled", [](FormButton&) { kit::pumpPending(); }},
    };
    return all;
}

/// Something that a user does, and the event in which the deed is done.
struct Occasion {
    char const* event;
    void (*provoke)(FormButton& button);
};

inline void moveOnto(FormButton& button) { kit::moveCursorTo(button.window(), kInside.x, kInside.y); }

inline void moveOff(FormButton& button) { kit::moveCursorTo(button.window(), kBeside.x, kBeside.y); }

/// Waits for what the system makes of real input; the event itself may be the end of everything.
inline void awaited(Button& button, char const* event)
{
    kit::pumpUntil([&] { return button.count(event) > 0; });
    kit::pumpPending();
}

inline void pressOn(FormButton& button)
{
    moveOnto(button);
    awaited(button, "MouseMove");
    kit::press(kit::MouseButton::Left);
    awaited(button, "MouseDown");
}

inline void click(FormButton& button)
{
    pressOn(button);
    kit::release(kit::MouseButton::Left);
    awaited(button, "MouseUp");
}

inline std::vector<Occasion> const& occasions()
{
    static std::vector<Occasion> const all = {
        {"MouseEnter", moveOnto},
        {"MouseMove", moveOnto},
        {"MouseExit",
         [](FormButton& button) {
             moveOnto(button);
             awaited(button, "MouseEnter");
             moveOff(button);
         }},
        {"Paint",
         [](FormButton& button) {
             ::InvalidateRect(button.window(), nullptr, FALSE);
             ::UpdateWindow(button.window());
         }},
        {"MouseDown", pressOn},
        {"MouseUp", click},
        {"Click", click},
        {"DblClick",
         [](FormButton& button) {
             click(button);
             kit::press(kit::MouseButton::Left);
             awaited(button, "DblClick");
         }},
    };
    return all;
}

} // namespace quillet::input

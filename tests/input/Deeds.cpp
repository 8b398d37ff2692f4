// What a sink may do to the control that just told it something.
#include "Deeds.h"

#include "kit/Input.h"
#include "kit/Pump.h"

namespace quillet::input {

namespace {

using kit::MouseButton;

void moveOnto(FormButton& button) { kit::moveCursorTo(button.window(), kInside.x, kInside.y); }

void moveOff(FormButton& button) { kit::moveCursorTo(button.window(), kBeside.x, kBeside.y); }

/// Waits for what the system makes of real input; the event itself may be the end of everything.
void settle(Button& button, char const* event)
{
    kit::pumpUntil([&] { return button.count(event) > 0; });
    kit::pumpPending();
}

void enterAndPress(FormButton& button)
{
    moveOnto(button);
    settle(button, "MouseMove");
    kit::press(MouseButton::Left);
    settle(button, "MouseDown");
}

void click(FormButton& button)
{
    enterAndPress(button);
    kit::release(MouseButton::Left);
    settle(button, "MouseUp");
}

} // namespace

std::vector<Deed> const& deeds()
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

std::vector<Occasion> const& occasions()
{
    static std::vector<Occasion> const all = {
        {"MouseEnter", moveOnto},
        {"MouseMove", moveOnto},
        {"MouseExit",
         [](FormButton& button) {
             moveOnto(button);
             settle(button, "MouseEnter");
             moveOff(button);
         }},
        {"Paint",
         [](FormButton& button) {
             ::InvalidateRect(button.window(), nullptr, FALSE);
             ::UpdateWindow(button.window());
         }},
        {"MouseDown", enterAndPress},
        {"MouseUp", click},
        {"Click", click},
        {"DblClick",
         [](FormButton& button) {
             click(button);
             kit::press(MouseButton::Left);
             settle(button, "DblClick");
         }},
    };
    return all;
}

} // namespace quillet::input

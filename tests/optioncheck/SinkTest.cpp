// What a sink may do to the control that just told it something.
#include "Box.h"

namespace quillet::box {
namespace {

/// A thing to be done inside an event.
struct Deed {
    char const* name;
    void (*act)(Box& box);
};

constexpr Deed kDeeds[] = {
    {"Released", [](Box& box) { box.release(); }},
    {"Removed", [](Box& box) { box.remove(); }},
    {"Closed", [](Box& box) { box.as<IOleObject>()->Close(OLECLOSE_NOSAVE); }},
    {"FormDestroyed", [](Box& box) { ::DestroyWindow(box.hosted().form().window()); }},
    {"InnerWindowDestroyed", [](Box& box) { ::DestroyWindow(box.inner()); }},
    {"Deactivated", [](Box& box) { box.as<IOleInPlaceObject>()->InPlaceDeactivate(); }},
    {"Disabled", [](Box& box) { box.put(L"Enabled", Variant::ofBool(false)); }},
    {"LoadedAgain", [](Box& box) { box.hosted().load(*newBag().get()); }},
    {"ValueSet", [](Box& box) { box.setValue(1); }},
    {"ValueCleared", [](Box& box) { box.setValue(0); }},
    {"MessagesHandled", [](Box&) { kit::pumpPending(); }},
    {"FocusMovedAway", [](Box&) { ::SetFocus(nullptr); }},
};

/// Something that a user does, and the event in which the deed is done.
struct Occasion {
    char const* event;
    void (*provoke)(Box& box);
};

void settle(Box& box, char const* event)
{
    // Shortly: after some deeds the event cannot come any more.
    constexpr DWORD kLimit = 80;
    kit::pumpUntil([&] { return box.count(event) > 0; }, kLimit);
    kit::pumpPending();
}

void moveOnto(Box& box)
{
    kit::moveCursorTo(box.inner(), kInside.x, kInside.y);
    settle(box, "MouseMove");
}

void clickWithTheMouse(Box& box)
{
    moveOnto(box);
    kit::press(kit::MouseButton::Left);
    settle(box, "MouseDown");
    kit::release(kit::MouseButton::Left);
    settle(box, "MouseUp");
}

void typeSpace(Box& box)
{
    kit::focus(box.inner());
    kit::typeKey(VK_SPACE);
    settle(box, "KeyUp");
}

constexpr Occasion kOccasions[] = {
    {"MouseMove", moveOnto},
    {"MouseDown", clickWithTheMouse},
    {"MouseUp", clickWithTheMouse},
    {"Click", clickWithTheMouse},
    {"KeyDown", typeSpace},
    {"KeyPress", typeSpace},
    {"KeyUp", typeSpace},
    {"Resize",
     [](Box& box) {
         RECT const larger = {20, 30, 200, 60};
         box.as<IOleInPlaceObject>()->SetObjectRects(&larger, &larger);
     }},
};

using Given = std::tuple<Kind const*, Occasion, Deed>;

class Sink : public BoxTest, public testing::WithParamInterface<Given> {};

TEST_P(Sink, mayDoItInsideTheEvent)
{
    auto const& [kind, occasion, deed] = GetParam();
    Box box(*kind, library(), form);
    box.start();
    bool done = false;
    box.events().action = [&, &occasion = occasion, &deed = deed](auto const& event) {
        if (done || nameOfEvent(event.id) != occasion.event)
            return;
        done = true;
        deed.act(box);
    };
    occasion.provoke(box);
    EXPECT_TRUE(kit::pumpUntil([&] { return done; })) << occasion.event << " did not come";
    kit::release(kit::MouseButton::Left);
    kit::pumpPending();
    box.events().action = nullptr;
}

INSTANTIATE_TEST_SUITE_P(that, Sink,
                         testing::Combine(testing::Values(&kOption, &kCheck), testing::ValuesIn(kOccasions),
                                          testing::ValuesIn(kDeeds)),
                         [](auto const& tested) {
                             return std::string(std::get<0>(tested.param)->name) + "_" +
                                    std::get<1>(tested.param).event + "_" + std::get<2>(tested.param).name;
                         });

} // namespace
} // namespace quillet::box

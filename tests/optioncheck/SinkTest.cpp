// What a sink may do to the control that just told it something, and when a container hears of another size.
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
    {"Disabled", [](Box& box) { box.disable(); }},
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
    {"MouseMove", moveOnto},        {"MouseDown", clickWithTheMouse},
    {"MouseUp", clickWithTheMouse}, {"Click", clickWithTheMouse},
    {"KeyDown", typeSpace},         {"KeyPress", typeSpace},
    {"KeyUp", typeSpace},           {"Resize", [](Box& box) { box.hosted().place({20, 30, 200, 60}); }},
};

using Given = std::tuple<Kind const*, Occasion, Deed>;

class Sink : public BoxTest, public testing::WithParamInterface<Given> {};

TEST_P(Sink, mayDoItInsideTheEvent)
{
    auto const& [kind, occasion, deed] = GetParam();
    Box box(*kind, library(), form);
    box.start();
    bool done = false;
    kit::Inside const inside(box, occasion.event, [&, &act = deed.act] {
        if (!std::exchange(done, true))
            act(box);
    });
    occasion.provoke(box);
    EXPECT_TRUE(kit::pumpUntil([&] { return done; })) << occasion.event << " did not come";
    kit::release(kit::MouseButton::Left);
    kit::pumpPending();
}

INSTANTIATE_TEST_SUITE_P(that, Sink,
                         testing::Combine(testing::Values(&kOption, &kCheck), testing::ValuesIn(kOccasions),
                                          testing::ValuesIn(kDeeds)),
                         [](auto const& tested) {
                             return std::string(std::get<0>(tested.param)->name) + "_" +
                                    std::get<1>(tested.param).event + "_" + std::get<2>(tested.param).name;
                         });

constexpr RECT kLarger = {20, 30, 200, 70};
constexpr RECT kElsewhere = {40, 90, 160, 110}; // as large as kPlace

class Resize : public EachBoxTest {
protected:
    Box box{kind(), library(), form};

    /// Site and loading, and what they raised.
    void load()
    {
        EXPECT_EQ(box.hosted().setSite(), S_OK);
        EXPECT_EQ(box.hosted().load(*newBag().get()), S_OK);
        EXPECT_EQ(box.hosted().setExtent(), S_OK);
        box.happened();
    }
    Names activate(RECT const& at)
    {
        box.hosted().site().position = at;
        return activate();
    }
    Names activate()
    {
        EXPECT_EQ(box.hosted().activate(), S_OK);
        return box.happened();
    }
    Names place(RECT const& at)
    {
        EXPECT_EQ(box.as<IOleInPlaceObject>()->SetObjectRects(&at, nullptr), S_OK);
        return box.happened();
    }
    void loadAndActivate()
    {
        load();
        activate();
    }
    /// Asks for the window, to which nobody gave a size.
    void makeWindow()
    {
        EXPECT_TRUE(::IsWindow(box.hwnd()));
        EXPECT_THAT(box.happened(), IsEmpty());
    }
    /// By an activation after each end of the one before; ended again.
    void expectOnlyForAnotherSize(std::function<void()> const& end)
    {
        loadAndActivate();
        end();
        EXPECT_THAT(activate(), IsEmpty());
        end();
        EXPECT_THAT(activate(kLarger), ElementsAreArray({"Resize"}));
        end();
    }
    void leave() { EXPECT_EQ(box.as<IOleInPlaceObject>()->InPlaceDeactivate(), S_OK); }
    void close() { EXPECT_EQ(box.as<IOleObject>()->Close(OLECLOSE_NOSAVE), S_OK); }
};

TEST_P(Resize, isRaisedAtTheFirstSize)
{
    load();
    RECT inner = {};
    kit::Inside const any(box, "", [&] { ::GetClientRect(box.hwnd(), &inner); });
    EXPECT_THAT(activate(), ElementsAreArray({"Resize"}));
    EXPECT_EQ(inner.right, kPlace.right - kPlace.left) << "when Resize is raised";
    EXPECT_EQ(inner.bottom, kPlace.bottom - kPlace.top);
}

TEST_P(Resize, isRaisedAtTheFirstSizeOfANewControl)
{
    EXPECT_EQ(box.hosted().setSite(), S_OK);
    EXPECT_EQ(box.hosted().initNew(), S_OK);
    box.happened();
    EXPECT_THAT(activate(), ElementsAreArray({"Resize"}));
}

TEST_P(Resize, isRaisedAtTheFirstSizeWhoeverAskedForTheWindowBefore)
{
    load();
    makeWindow();
    EXPECT_THAT(activate(), ElementsAreArray({"Resize"}));
}

TEST_P(Resize, isRaisedAtTheFirstSizeWhateverWasToldBeforeActivation)
{
    load();
    EXPECT_THAT(place(kPlace), IsEmpty());
    makeWindow();
    EXPECT_THAT(activate(), ElementsAreArray({"Resize"}));
}

TEST_P(Resize, isRaisedByAnActivationWithAnotherSizeAlone)
{
    expectOnlyForAnotherSize([&] { leave(); });
    EXPECT_THAT(place(kPlace), IsEmpty());
    EXPECT_THAT(activate(kPlace), ElementsAreArray({"Resize"}));
}

TEST_P(Resize, isRaisedByAnActivationAfterCloseWithAnotherSizeAlone)
{
    expectOnlyForAnotherSize([&] { close(); });
    EXPECT_TRUE(::IsWindow(box.hwnd()));
    EXPECT_THAT(activate(), IsEmpty()) << "asked for in between, the window has the last size";
    RECT inner = {};
    ::GetClientRect(box.hwnd(), &inner);
    EXPECT_EQ(inner.right, kLarger.right - kLarger.left);
}

TEST_P(Resize, isRaisedOnceForEachChange)
{
    loadAndActivate();
    EXPECT_THAT(place(kLarger), ElementsAreArray({"Resize"}));
    EXPECT_THAT(place(kLarger), IsEmpty());
    EXPECT_THAT(place(kPlace), ElementsAreArray({"Resize"}));
    EXPECT_THAT(place(kElsewhere), IsEmpty()) << "a move is none";
    EXPECT_THAT(place({20, 30, 20, 30}), ElementsAreArray({"Resize"}));
    EXPECT_THAT(place(kPlace), ElementsAreArray({"Resize"}));
}

TEST_P(Resize, whoseSinkClosesTheControlEndsTheActivation)
{
    load();
    kit::Inside const any(box, "", [&] { close(); });
    box.hosted().activate();
    EXPECT_THAT(box.happened(), ElementsAreArray({"Resize"}));
    EXPECT_EQ(form.record().count("Site.OnInPlaceActivate"), form.record().count("Site.OnInPlaceDeactivate"));
    EXPECT_EQ(::GetWindow(form.window(), GW_CHILD), nullptr);
}

QV_EACH_BOX(Resize);

} // namespace
} // namespace quillet::box

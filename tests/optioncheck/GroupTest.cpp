// One choice among the option buttons of a container.
#include "Box.h"

namespace quillet::box {
namespace {

class Group : public BoxTest {
protected:
    ~Group() override
    {
        boxes.clear();
        for (auto const& container : containers)
            container->removeAll();
    }

    /// A container of the form that tells its window as containers do.
    kit::NamedObject& container(long window)
    {
        containers.push_back(kit::make<kit::NamedObject>("Container", form.sharedRecord()));
        containers.back()->offer(L"hwnd", Variant::ofLong(window));
        return *containers.back().get();
    }
    /// So many options in one container.
    void addOptions(int count, Mode mode = Mode::Run)
    {
        auto& frame = container(1);
        for (int i = 0; i < count; ++i)
            add(kOption, &frame, mode);
    }

    Box& add(Kind const& kind, kit::NamedObject* in, Mode mode = Mode::Run)
    {
        int const number = static_cast<int>(boxes.size());
        RECT const place = {20, 20 + 25 * number, 140, 40 + 25 * number};
        boxes.push_back(
            std::make_unique<Box>(kind, library(), form, place, L"Box" + std::to_wstring(number), mode));
        if (in)
            boxes.back()->extender().offer(L"Container", Variant::ofDispatch(in));
        boxes.back()->start();
        return *boxes.back();
    }

    void choose(size_t which) { boxes[which]->setValue(1); }
    std::vector<long> values() const
    {
        std::vector<long> all;
        for (auto const& box : boxes)
            all.push_back(box->value());
        return all;
    }

    std::vector<ComPtr<kit::NamedObject>> containers;
    std::vector<std::unique_ptr<Box>> boxes;
};

TEST_F(Group, keepsOneChoiceInAContainer)
{
    addOptions(4);
    choose(1);
    EXPECT_THAT(values(), ElementsAreArray({0, 1, 0, 0}));
    choose(3);
    EXPECT_THAT(values(), ElementsAreArray({0, 0, 0, 1}));
    boxes[0]->click();
    EXPECT_THAT(values(), ElementsAreArray({1, 0, 0, 0}));
}

TEST_F(Group, keepsOneChoiceForEachContainer)
{
    auto& left = container(1);
    auto& right = container(2);
    add(kOption, &left);
    add(kOption, &right);
    add(kOption, &left);
    add(kOption, &right);
    choose(0);
    choose(1);
    EXPECT_THAT(values(), ElementsAreArray({1, 1, 0, 0}));
    choose(2);
    EXPECT_THAT(values(), ElementsAreArray({0, 1, 1, 0}));
    choose(3);
    EXPECT_THAT(values(), ElementsAreArray({0, 0, 1, 1}));
}

TEST_F(Group, isToldByTheWindowAndNotByTheObjectOfTheContainer)
{
    add(kOption, &container(7));
    add(kOption, &container(7));
    choose(0);
    choose(1);
    EXPECT_THAT(values(), ElementsAreArray({0, 1}));
}

TEST_F(Group, isTheWholeFormWhereContainersHaveNoWindow)
{
    auto& left = container(1);
    left.remove(L"hwnd");
    add(kOption, &left);
    add(kOption, &container(2));
    add(kOption, nullptr); // on the form, which tells no window here
    choose(0);
    EXPECT_THAT(values(), ElementsAreArray({1, 0, 0}));
    choose(1);
    EXPECT_THAT(values(), ElementsAreArray({0, 1, 0}));
    choose(2);
    EXPECT_THAT(values(), ElementsAreArray({0, 0, 1}));
}

TEST_F(Group, isTheWholeFormWhereAContainerFails)
{
    auto& left = container(1);
    add(kOption, &left);
    add(kOption, &container(2));
    choose(0);
    choose(1);
    EXPECT_THAT(values(), ElementsAreArray({1, 1}));
    left.refuse(L"hwnd");
    boxes[1]->setValue(0);
    choose(1);
    EXPECT_THAT(values(), ElementsAreArray({0, 1}));
}

TEST_F(Group, leavesCheckBoxesAlone)
{
    auto& frame = container(1);
    add(kCheck, &frame);
    add(kOption, &frame);
    add(kCheck, &frame);
    choose(0);
    boxes[2]->setValue(2);
    choose(1);
    EXPECT_THAT(values(), ElementsAreArray({1, 1, 2}));
    boxes[0]->click();
    boxes[0]->moveTo(kBeside);
    boxes[2]->click();
    EXPECT_THAT(values(), ElementsAreArray({0, 1, 0}));
}

TEST_F(Group, leavesPlainOptionButtonsAlone)
{
    UniqueWindow const radio(::CreateWindowExW(0, L"BUTTON", L"Plain",
                                               WS_CHILD | WS_VISIBLE | BS_AUTORADIOBUTTON, 200, 20, 100, 20,
                                               form.window(), nullptr, nullptr, nullptr));
    ::SendMessageW(radio.get(), BM_SETCHECK, BST_CHECKED, 0);
    auto const plain = kit::make<kit::NamedObject>("Plain", form.sharedRecord());
    plain->offer(L"Value", Variant::ofBool(true));
    form.container().objects.push_back(plain->unknown()); // as its form lists it among the others
    addOptions(2);
    choose(0);
    boxes[1]->click();
    std::erase(form.container().objects, plain->unknown());
    EXPECT_THAT(values(), ElementsAreArray({0, 1}));
    EXPECT_EQ(::SendMessageW(radio.get(), BM_GETCHECK, 0, 0), BST_CHECKED);
    EXPECT_EQ(form.record().countFrom("Plain.Value ="), 0);
}

TEST_F(Group, clearsEveryOtherOneWhateverItsValue)
{
    addOptions(3);
    form.record().forget();
    choose(2);
    // Two siblings lose their tab stop; the chosen one has it by its click and by its setter.
    EXPECT_EQ(form.record().count("Extender.TabStop = 0"), 2);
    EXPECT_EQ(form.record().count("Extender.TabStop = -1"), 2);
}

TEST_F(Group, givesTheChosenOneItsTabStopThenClearsTheOthersAndThenRaisesClick)
{
    addOptions(3);
    std::vector<std::string> order;
    form.record().whenNoted = [&](std::string const& call) {
        if (call.starts_with("Extender.TabStop ="))
            order.push_back(call);
    };
    boxes[1]->events().action = [&](auto const& event) { order.push_back(nameOfEvent(event.id)); };
    choose(1);
    form.record().whenNoted = nullptr;
    EXPECT_THAT(order, ElementsAreArray({"Extender.TabStop = -1", "Extender.TabStop = 0",
                                         "Extender.TabStop = 0", "Click", "Extender.TabStop = -1"}));
}

TEST_F(Group, leavesOneTabStop)
{
    addOptions(3);
    auto const tabStops = [&] {
        std::vector<bool> all;
        for (auto const& box : boxes)
            all.push_back(box->extender().value(L"TabStop").toBool());
        return all;
    };
    choose(0);
    EXPECT_THAT(tabStops(), ElementsAreArray({true, false, false}));
    boxes[2]->click();
    EXPECT_THAT(tabStops(), ElementsAreArray({false, false, true}));
}

TEST_F(Group, keepsItsChoiceWhileItIsLoaded)
{
    auto& frame = container(1);
    add(kOption, &frame);
    choose(0);
    boxes.push_back(std::make_unique<Box>(kOption, library(), form, kPlace));
    boxes[1]->extender().offer(L"Container", Variant::ofDispatch(&frame));
    boxes[1]->start(*newBag({{L"Value", Variant::ofLong(1)}}).get());
    EXPECT_THAT(values(), ElementsAreArray({0, 1}));
}

TEST_F(Group, isFoundThroughTheParentWhereTheSiteHasNoContainer)
{
    form.record().answer("Site.GetContainer", E_NOTIMPL);
    auto& left = container(1);
    add(kOption, &left);
    add(kOption, &left);
    add(kOption, &container(2));
    choose(2);
    choose(0);
    EXPECT_THAT(values(), ElementsAreArray({1, 0, 1}));
    choose(1);
    EXPECT_THAT(values(), ElementsAreArray({0, 1, 1}));
}

// A collection that counts on must not hold up a click.
TEST_F(Group, asksACollectionForNoMoreControlsThanAFormCanHave)
{
    constexpr long kMostControls = 0x7FFF;
    add(kOption, nullptr);
    form.record().answer("Site.GetContainer", E_NOTIMPL);
    auto const stranger = kit::make<kit::NamedObject>("Stranger", form.sharedRecord());
    stranger->offer(L"Object", Variant::ofDispatch(nullptr));
    long asked = 0;
    form.controls().offer(L"Count", Variant::ofLong(LONG_MAX));
    form.controls().provide(L"Item", [&](Variant const&) {
        if (++asked > kMostControls)
            form.controls().refuse(L"Item"); // or it would go on for hours
        return Variant::ofDispatch(stranger.get());
    });
    choose(0);
    EXPECT_EQ(asked, kMostControls);
}

TEST_F(Group, needsNoContainerAtAll)
{
    form.record().answer("Site.GetContainer", E_NOTIMPL);
    form.record().answer("Site.GetExtendedControl", E_NOTIMPL);
    add(kOption, nullptr);
    EXPECT_EQ(boxes[0]->setValue(1), S_OK);
    EXPECT_THAT(values(), ElementsAreArray({1}));
}

TEST_F(Group, holdsAtDesignTime)
{
    addOptions(2, Mode::Design);
    choose(0);
    choose(1);
    EXPECT_THAT(values(), ElementsAreArray({0, 1}));
}

TEST_F(Group, raisesClickWhenTheOthersAreClear)
{
    addOptions(2);
    choose(0);
    std::vector<long> seen;
    boxes[1]->events().action = [&](auto const&) { seen = values(); };
    choose(1);
    EXPECT_THAT(seen, ElementsAreArray({0, 1}));
}

TEST_F(Group, followsASinkThatChoosesAnotherInsideClick)
{
    addOptions(3);
    Names order;
    for (size_t i = 0; i < 3; ++i)
        boxes[i]->events().action = [&, i](auto const&) {
            order.push_back(std::to_string(i));
            if (i == 0)
                boxes[2]->setValue(1);
        };
    choose(0);
    EXPECT_THAT(values(), ElementsAreArray({0, 0, 1}));
    EXPECT_THAT(order, ElementsAreArray({"0", "2"}));
}

TEST_F(Group, letsASinkTakeTheChoiceBackInsideClick)
{
    addOptions(2);
    choose(1);
    boxes[1]->happened();
    boxes[0]->events().action = [&](auto const&) { boxes[0]->setValue(0); };
    choose(0);
    EXPECT_THAT(values(), ElementsAreArray({0, 0}));
    EXPECT_FALSE(boxes[0]->extender().value(L"TabStop").toBool());
    EXPECT_THAT(boxes[1]->happened(), testing::IsEmpty());
}

TEST_F(Group, endsWhereASinkChoosesItselfAgainInsideClick)
{
    addOptions(1);
    boxes[0]->events().action = [&](auto const&) { boxes[0]->setValue(1); };
    choose(0);
    EXPECT_EQ(boxes[0]->count("Click"), 1);
}

TEST_F(Group, isGuardedWhileASiblingTellsOfItsChange)
{
    addOptions(2);
    kit::ChangeRecorder& sink = boxes[1]->changes();
    sink.action = [&](DISPID) {
        sink.action = nullptr;
        boxes[0]->setValue(0);
        boxes[0]->setValue(1); // a click in the middle of clearing: it does not clear a second time
    };
    form.record().forget();
    choose(0);
    EXPECT_THAT(values(), ElementsAreArray({1, 0}));
    EXPECT_EQ(boxes[0]->count("Click"), 2);
    EXPECT_EQ(form.record().countFrom("Container.EnumObjects"), 1);
}

TEST_F(Group, outlivesASiblingThatGoesInsideTheChange)
{
    addOptions(3);
    kit::ChangeRecorder& sink = boxes[1]->changes();
    sink.action = [&](DISPID) {
        sink.action = nullptr;
        boxes[2]->remove();
    };
    choose(0);
    EXPECT_EQ(boxes[0]->value(), 1);
}

TEST_F(Group, runsOverASiblingThatFails)
{
    addOptions(2);
    choose(1);
    auto const stranger = kit::make<kit::NamedObject>("Stranger", form.sharedRecord());
    auto& objects = form.container().objects;
    objects.insert(objects.begin(), stranger.get());
    choose(0);
    std::erase(objects, stranger->unknown());
    EXPECT_THAT(values(), ElementsAreArray({1, 0}));
}

} // namespace
} // namespace quillet::box

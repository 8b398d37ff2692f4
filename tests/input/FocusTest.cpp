// Focus that comes and goes: which flat command buttons are repainted, how often and in which order.
#include "Button.h"
#include "kit/Counterpart.h"
#include "kit/Pump.h"
#include "typelib/DispatchIds.h"
#include "typelib/Interfaces.h"

namespace quillet::input {

/// Counts how often it was asked to refresh. Everything else is refused.
class BrokenSibling final : public kit::DispatchCounterpart<_qvFlatCommand> {
public:
    explicit BrokenSibling(HRESULT answer) : m_answer(answer) {}

    int refreshed = 0;

#define QV_VALUE(name, id, type, help)                                                                       \
    STDMETHODIMP get_##name(type*) override { return E_NOTIMPL; }                                            \
    STDMETHODIMP put_##name(type) override { return E_NOTIMPL; }
#define QV_OBJECT(name, id, type, help)                                                                      \
    STDMETHODIMP get_##name(type**) override { return E_NOTIMPL; }                                           \
    STDMETHODIMP putref_##name(type*) override { return E_NOTIMPL; }
#define QV_READ_ONLY(name, id, type, help)                                                                   \
    STDMETHODIMP get_##name(type*) override { return E_NOTIMPL; }
#define QV_METHOD(name, id, help)                                                                            \
    STDMETHODIMP name() override { return called(id); }
#define QV_WINDOW_PROCEDURE(name, id, help)                                                                  \
    STDMETHODIMP name(LONG, LONG, LONG, LONG, LONG*) override { return E_NOTIMPL; }
#include "typelib/members/qvFlatCommand.inc"

private:
    HRESULT called(DISPID method)
    {
        if (method != dispid::qvFlatCommand::Refresh)
            return E_NOTIMPL;
        ++refreshed;
        return m_answer;
    }

    HRESULT m_answer;
};

namespace {

using testing::Contains;
using testing::ElementsAreArray;
using testing::IsEmpty;
using testing::Not;

/// Several buttons in one form; the repaints of all of them in one list: the first button's is "1".
class FocusMoves : public kit::ControlTest {
protected:
    kit::FakeForm form;
    std::vector<std::unique_ptr<FormButton>> buttons;
    std::vector<int> painted;

    void TearDown() override
    {
        ::SetFocus(nullptr); // a button that goes with it would look for siblings among those that went
        for (auto const& each : buttons)
            each->events().action = nullptr;
        buttons.clear();
    }
    FormButton& add(int height = 25)
    {
        int const number = static_cast<int>(buttons.size()) + 1;
        RECT const place{20, 30 * number, 140, 30 * number + height};
        buttons.push_back(
            std::make_unique<FormButton>(library(), form, place, L"Button" + std::to_wstring(number)));
        buttons.back()->start();
        listenTo(*buttons.back(), number);
        return *buttons.back();
    }
    /// So many buttons, one of which has the focus.
    void begin(int count, int focused)
    {
        for (int i = 0; i < count; ++i)
            add();
        ASSERT_TRUE(kit::focus(window(focused)));
    }
    void listenTo(FormButton& button, int number)
    {
        button.events().action = [this, number](kit::EventRecorder::Event const& event) {
            if (event.id == eventid::command::Paint)
                painted.push_back(number);
        };
    }
    FormButton& button(int number) { return *buttons.at(static_cast<size_t>(number) - 1); }
    HWND window(int number) { return button(number).window(); }

    /// The repaints that giving the window the focus brings about.
    std::vector<int> focusOn(HWND target)
    {
        kit::pumpPending();
        painted.clear();
        EXPECT_TRUE(kit::focus(target));
        kit::pumpPending();
        return std::exchange(painted, {});
    }
    std::vector<int> countsOfFocusOn(HWND target)
    {
        std::vector<int> counts(buttons.size(), 0);
        for (int const number : focusOn(target))
            ++counts.at(static_cast<size_t>(number) - 1);
        return counts;
    }
    /// Lets the form's Controls hand out the controls themselves.
    void offerControlsThroughParent()
    {
        form.record().answer("Site.GetContainer", E_NOTIMPL);
        form.controls().provide(L"Item", [this](Variant const& index) {
            return Variant::ofDispatch(button(static_cast<int>(index.toLong()) + 1).operator->());
        });
    }
};

// Each of the two that the focus moves between is painted because of its window's message; then every button
// is painted for the loss and for the gain.
TEST_F(FocusMoves, betweenTwoButtonsRepaintEveryButtonOfTheContainer)
{
    begin(2, 1);
    EXPECT_THAT(focusOn(window(2)), ElementsAreArray({1, 1, 2, 2, 1, 2}));
    EXPECT_THAT(focusOn(window(1)), ElementsAreArray({2, 1, 2, 1, 1, 2}));
}

TEST_F(FocusMoves, betweenTwoOfFiveButtonsRepaintsAllFive)
{
    begin(5, 2);
    EXPECT_THAT(countsOfFocusOn(window(4)), ElementsAreArray({2, 3, 2, 3, 2}));
    EXPECT_THAT(countsOfFocusOn(window(1)), ElementsAreArray({3, 2, 2, 3, 2}));
}

TEST_F(FocusMoves, toAndFromSomethingElseRepaintEveryButtonOnce)
{
    begin(5, 3);
    auto const edit = kit::newEditBox(form.window(), {200, 30, 260, 50});
    EXPECT_THAT(countsOfFocusOn(edit.get()), ElementsAreArray({1, 1, 2, 1, 1}));
    EXPECT_THAT(countsOfFocusOn(window(3)), ElementsAreArray({1, 1, 2, 1, 1}));
}

TEST_F(FocusMoves, awayRepaintEveryButtonBeforeTheContainerHearsOfIt)
{
    begin(2, 1);
    auto const edit = kit::newEditBox(form.window(), {200, 30, 260, 50});
    static constexpr int kContainerHears = 0;
    form.record().whenNoted = [this](std::string const& call) {
        if (call == "Site.OnFocus(lost)")
            painted.push_back(kContainerHears);
    };
    EXPECT_THAT(focusOn(edit.get()), ElementsAreArray({1, 1, 2, kContainerHears}));
    form.record().whenNoted = nullptr;
}

TEST_F(FocusMoves, askTheContainerForEmbeddingsAndOthers)
{
    begin(2, 1);
    form.record().forget();
    focusOn(window(2));
    static_assert((OLECONTF_EMBEDDINGS | OLECONTF_OTHERS) == 5);
    EXPECT_THAT(form.record().calls(), Contains("Container.EnumObjects(5)"));
    EXPECT_THAT(form.record().calls(), Not(Contains("Parent.Controls")));
}

TEST_F(FocusMoves, takeTheParentsControlsWhereTheSiteHasNoContainer)
{
    begin(5, 2);
    offerControlsThroughParent();
    form.record().forget();
    EXPECT_THAT(countsOfFocusOn(window(4)), ElementsAreArray({2, 3, 2, 3, 2}));
    EXPECT_THAT(form.record().calls(), Contains("Parent.Controls"));
    EXPECT_THAT(form.record().calls(), Contains("Controls.Count"));
}

TEST_F(FocusMoves, findTheControlInsideAnExtenderThatTheParentsControlsHandOut)
{
    add();
    add();
    add();
    form.record().answer("Site.GetContainer", E_NOTIMPL);
    ASSERT_TRUE(kit::focus(window(1)));
    EXPECT_THAT(countsOfFocusOn(window(2)), ElementsAreArray({3, 3, 2}));
}

TEST_F(FocusMoves, takeTheParentsControlsWhereTheContainerEnumeratesNothing)
{
    add();
    add();
    offerControlsThroughParent();
    form.record().answerAsUsual("Site.GetContainer");
    form.record().answer("Container.EnumObjects", E_NOTIMPL);
    ASSERT_TRUE(kit::focus(window(1)));
    EXPECT_THAT(countsOfFocusOn(window(2)), ElementsAreArray({3, 3}));
}

TEST_F(FocusMoves, withNeitherContainerNorParentRepaintTheTwoThatAreConcerned)
{
    for (int i = 0; i < 3; ++i) {
        add();
        buttons.back()->extender().remove(L"Parent");
    }
    form.record().answer("Site.GetContainer", E_NOTIMPL);
    ASSERT_TRUE(kit::focus(window(1)));
    EXPECT_THAT(countsOfFocusOn(window(2)), ElementsAreArray({1, 1, 0}));
}

TEST_F(FocusMoves, stopTheWalkAtTheFirstErrorOfASibling)
{
    auto const broken = kit::make<BrokenSibling>(E_FAIL);
    add();
    add();
    form.container().objects.push_back(broken->unknown());
    add();
    ASSERT_TRUE(kit::focus(window(1)));
    broken->refreshed = 0;
    EXPECT_THAT(countsOfFocusOn(window(2)), ElementsAreArray({3, 3, 0}));
    EXPECT_EQ(broken->refreshed, 2);
    std::erase(form.container().objects, broken->unknown());
}

TEST_F(FocusMoves, stopTheWalkAtTheFirstErrorOfTheParentsControls)
{
    begin(4, 1);
    offerControlsThroughParent();
    form.controls().provide(L"Item", [this](Variant const& index) {
        int const number = static_cast<int>(index.toLong()) + 1;
        if (number == 2)
            form.controls().refuse(L"Item"); // from the third one on, and for the whole second walk
        return Variant::ofDispatch(button(number).operator->());
    });
    EXPECT_THAT(countsOfFocusOn(window(2)), ElementsAreArray({2, 2, 0, 0}));
}

TEST_F(FocusMoves, stopTheWalkAtAMemberOfTheParentsControlsThatIsNoObject)
{
    for (int i = 0; i < 4; ++i)
        add();
    offerControlsThroughParent();
    form.controls().provide(L"Item", [this](Variant const& index) {
        int const number = static_cast<int>(index.toLong()) + 1;
        return number == 3 ? Variant::ofString(L"nobody") : Variant::ofDispatch(button(number).operator->());
    });
    ASSERT_TRUE(kit::focus(window(1)));
    EXPECT_THAT(countsOfFocusOn(window(2)), ElementsAreArray({3, 3, 0, 0}));
}

TEST_F(FocusMoves, surviveSiblingsThatGoDuringTheWalk)
{
    begin(5, 4);
    kit::pumpPending();
    button(1).events().action = [this](auto const&) {
        button(2).remove();
        button(3).release();
    };
    focusOn(window(5));
    EXPECT_FALSE(::IsWindow(window(2)));
    EXPECT_FALSE(::IsWindow(window(3)));
    EXPECT_EQ(::GetFocus(), window(5));
}

TEST_F(FocusMoves, seeAMouseThatMovesDuringTheWalk)
{
    add();
    add();
    add(40);
    ASSERT_TRUE(kit::focus(window(1)));
    kit::pumpPending();
    bool moved = false;
    button(2).events().action = [&](auto const&) {
        if (std::exchange(moved, true))
            return;
        EXPECT_TRUE(kit::moveCursorTo(window(3), kInside.x, kInside.y));
        EXPECT_TRUE(kit::pumpUntil([&] { return ::GetCapture() == window(3); }));
    };
    focusOn(window(2));
    EXPECT_TRUE(moved);
    EXPECT_EQ(button(3).look(), "hot");
    leave(button(3));
    EXPECT_EQ(button(3).look(), "normal");
}

TEST_F(FocusMoves, callOnlySiblingsThatAreFlatCommandButtons)
{
    auto const sibling = kit::make<BrokenSibling>(S_OK);
    sibling->hide(__uuidof(_qvFlatCommand));
    form.container().objects.push_back(sibling->unknown());
    form.container().objects.push_back(form.frame().unknown());
    begin(2, 1);
    EXPECT_THAT(countsOfFocusOn(window(2)), ElementsAreArray({3, 3})) << "the walk goes on past them";
    EXPECT_EQ(sibling->refreshed, 0);
    std::erase(form.container().objects, sibling->unknown());
    std::erase(form.container().objects, form.frame().unknown());
}

TEST_F(FocusMoves, repaintTheDefaultButtonOnceMoreWhenItLosesTheFocus)
{
    add().extender().offer(L"Default", Variant::ofBool(true));
    add();
    ASSERT_TRUE(kit::focus(window(1)));
    EXPECT_THAT(focusOn(window(2)), ElementsAreArray({1, 1, 1, 2, 2, 1, 2}));
    EXPECT_THAT(countsOfFocusOn(window(1)), ElementsAreArray({3, 3})) << "not when it gains the focus";
}

TEST_F(FocusMoves, ofAButtonWhoseContainerHasNoDefaultNotionDoNotFail)
{
    add().extender().remove(L"Default");
    add().extender().refuse(L"Default");
    ASSERT_TRUE(kit::focus(window(1)));
    EXPECT_THAT(countsOfFocusOn(window(2)), ElementsAreArray({3, 3}));
    EXPECT_THAT(countsOfFocusOn(window(1)), ElementsAreArray({3, 3}));
}

TEST_F(FocusMoves, inDesignModeRaiseNoPaint)
{
    begin(2, 1);
    for (auto const& each : buttons)
        each->site().setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofBool(false));
    form.record().forget();
    EXPECT_THAT(focusOn(window(2)), IsEmpty());
    EXPECT_EQ(form.record().countFrom("Container.EnumObjects"), 0) << "nobody is looked for";
}

// A button that was never loaded has no window services; its own window does what they would have done.
TEST_F(FocusMoves, betweenNewButtonsRepaintAsBetweenLoadedOnes)
{
    for (int number = 1; number <= 2; ++number) {
        RECT const place{20, 30 * number, 140, 30 * number + 25};
        buttons.push_back(std::make_unique<FormButton>(library(), form, place));
        buttons.back()->startNew();
        listenTo(*buttons.back(), number);
    }
    ASSERT_TRUE(kit::focus(window(1)));
    EXPECT_THAT(focusOn(window(2)), ElementsAreArray({1, 1, 2, 2, 1, 2}));
}

} // namespace
} // namespace quillet::input

// Ends in the middle: a sink does away with the control, or with what it lives on, inside an event.
#include "Button.h"
#include "Deeds.h"
#include "kit/Pump.h"

#include <ole2.h>

namespace quillet::input {
namespace {

/// Nothing may hold the mouse that is no longer there.
void expectNoDeadCapture()
{
    HWND const captured = ::GetCapture();
    EXPECT_TRUE(!captured || ::IsWindow(captured)) << "the capture is a dead window's";
}

/// Every button up and the cursor elsewhere, whatever became of the control.
void calmDown()
{
    kit::release(kit::MouseButton::Left);
    kit::pumpPending();
    expectNoDeadCapture();
    EXPECT_TRUE(kit::moveCursorAway());
    kit::pumpPending();
    ::ReleaseCapture();
    kit::pumpPending();
}

struct UnderFire {
    Occasion occasion;
    Deed deed;
};

std::vector<UnderFire> everyDeedOnEveryOccasion()
{
    std::vector<UnderFire> rows;
    for (Occasion const& occasion : occasions())
        for (Deed const& deed : deeds())
            rows.push_back({occasion, deed});
    return rows;
}

class InsideAnEvent : public kit::ControlTest, public testing::WithParamInterface<UnderFire> {
protected:
    kit::FakeForm form;
    FormButton button{library(), form};
};

TEST_P(InsideAnEvent, theControlSurvivesOrEndsCleanly)
{
    auto const& [occasion, deed] = GetParam();
    button.start();
    ASSERT_TRUE(kit::focus(button.window()));
    settle(button);
    int times = 0;
    button.events().action = [&, &occasion = occasion, &deed = deed](kit::EventRecorder::Event const&) {
        if (button.count(occasion.event) == 0 || times++ > 0)
            return;
        deed.act(button);
        expectNoDeadCapture();
    };
    occasion.provoke(button);
    EXPECT_TRUE(kit::pumpUntil([&] { return times > 0; })) << occasion.event << " did not come";
    kit::pumpPending();
    calmDown();
    button.events().action = nullptr;
    button.remove();
    expectNoDeadCapture();
}

INSTANTIATE_TEST_SUITE_P(On, InsideAnEvent, testing::ValuesIn(everyDeedOnEveryOccasion()),
                         [](auto const& tested) {
                             return std::string(tested.param.occasion.event) + "_" + tested.param.deed.name;
                         });

/// A hovered button and its end from outside.
class End : public kit::ControlTest {
protected:
    kit::FakeForm form;
    FormButton button{library(), form};

    void SetUp() override
    {
        ControlTest::SetUp();
        button.start();
        enter(button);
        ASSERT_EQ(::GetCapture(), button.window());
    }
    void TearDown() override { calmDown(); }
    /// The window is gone and has given the capture back.
    void expectGone() const
    {
        EXPECT_FALSE(::IsWindow(button.window()));
        EXPECT_EQ(::GetCapture(), nullptr);
    }
};

TEST_F(End, ofAButtonThatHoldsTheCaptureGivesItBack)
{
    button.remove();
    expectGone();
}

TEST_F(End, byTheLastReferenceOfAButtonThatHoldsTheCaptureGivesItBack)
{
    button.release();
    expectGone();
}

TEST_F(End, ofAPressedButtonRaisesNothingWhenTheMouseButtonComesUp)
{
    pressDown(button);
    button.remove();
    button.events().forget();
    kit::release(kit::MouseButton::Left);
    EXPECT_TRUE(kit::moveCursorAway());
    kit::pumpPending();
    EXPECT_TRUE(button.events().events.empty());
}

TEST_F(End, ofTheFormBeforeCloseLeavesAControlThatClosesAndGoes)
{
    ::DestroyWindow(form.window());
    expectGone();
    EXPECT_EQ(button.as<IOleObject>()->Close(OLECLOSE_NOSAVE), S_OK);
    EXPECT_EQ(button->Refresh(), S_OK);
    button.remove();
}

TEST_F(End, ofTheFormAfterCloseLeavesAControlThatGoes)
{
    EXPECT_EQ(button.as<IOleObject>()->Close(OLECLOSE_NOSAVE), S_OK);
    ::DestroyWindow(form.window());
    EXPECT_EQ(button->Refresh(), S_OK);
    button.remove();
}

TEST_F(End, ofTheFormLeavesAControlThatCanLiveInAnother)
{
    ::DestroyWindow(form.window());
    kit::FakeForm other;
    auto const site = kit::make<kit::FakeSite>(other, kPlace, L"Button1");
    auto const object = button.as<IOleObject>();
    EXPECT_EQ(object->SetClientSite(site.get()), S_OK);
    EXPECT_EQ(object->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, site.get(), 0, other.window(), &kPlace),
              S_OK);
    HWND window = nullptr;
    EXPECT_EQ(button.as<IOleWindow>()->GetWindow(&window), S_OK);
    EXPECT_TRUE(::IsWindowVisible(window));
    EXPECT_EQ(::GetParent(window), other.window());
    kit::pumpPending();
    EXPECT_EQ(lookOf(window), "hot") << "the cursor is where it was";
    object->Close(OLECLOSE_NOSAVE);
    object->SetClientSite(nullptr);
    site->dismantle();
    button.remove();
}

TEST_F(End, ofBeingShownWhileHoveredGivesTheCaptureBackAtTheNextMove)
{
    EXPECT_EQ(button.hosted().doVerb(OLEIVERB_HIDE), S_OK);
    EXPECT_FALSE(::IsWindowVisible(button.window()));
    ASSERT_TRUE(kit::moveCursorTo(form.window(), 300, 200));
    EXPECT_TRUE(kit::pumpUntil([] { return ::GetCapture() == nullptr; }));
    EXPECT_EQ(button.hosted().doVerb(OLEIVERB_SHOW), S_OK);
    EXPECT_THAT(enter(button), testing::Contains("MouseEnter"));
    EXPECT_EQ(button.look(), "hot");
}

TEST_F(End, ofActivationWhileHoveredGivesTheCaptureBackAtTheNextMove)
{
    EXPECT_EQ(button.as<IOleInPlaceObject>()->InPlaceDeactivate(), S_OK);
    ASSERT_TRUE(kit::moveCursorTo(form.window(), 300, 200));
    EXPECT_TRUE(kit::pumpUntil([] { return ::GetCapture() == nullptr; }));
}

TEST_F(End, ofHoverByDisablingGivesTheCaptureBack)
{
    button->put_Enabled(VARIANT_FALSE);
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(button.look(), "disabled");
}

TEST_F(End, insideThePaintingThatTheEndItselfBringsIsOneEnd)
{
    FormButton sibling(library(), form, {20, 100, 140, 140}, L"Button2");
    sibling.start();
    ASSERT_TRUE(kit::focus(button.window()));
    kit::pumpPending();
    int paints = 0;
    // Hidden, the button loses the focus, and all buttons of the form are painted once more.
    button.events().action = [&](auto const&) {
        ++paints;
        button.events().action = nullptr;
        sibling.remove();
        button.remove();
    };
    button.remove();
    EXPECT_EQ(paints, 1);
    EXPECT_FALSE(::IsWindow(button.window()));
    EXPECT_FALSE(::IsWindow(sibling.window()));
}

/// Another part of the program that subclasses windows, too, and passes everything on.
struct Outsider {
    static inline WNDPROC previous = nullptr;
    static inline int seen = 0;

    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        ++seen;
        return ::CallWindowProcA(previous, window, message, wParam, lParam);
    }
    static void join(HWND window)
    {
        previous = reinterpret_cast<WNDPROC>(
            ::SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&procedure)));
        seen = 0;
    }
    static void leave(HWND window)
    {
        ::SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(previous));
    }
};

TEST_F(End, ofALaterSubclasserBeforeTheControlsLeavesTheControlAsItWas)
{
    Outsider::join(button.window());
    EXPECT_THAT(moveInside(button), testing::ElementsAreArray({"MouseMove"}));
    EXPECT_GT(Outsider::seen, 0);
    Outsider::leave(button.window());
    Outsider::seen = 0;
    EXPECT_THAT(leave(button), testing::ElementsAreArray({"MouseExit", "Paint", "MouseMove"}));
    EXPECT_EQ(Outsider::seen, 0);
    button.remove();
}

TEST_F(End, ofTheControlBeforeALaterSubclassersLeavesTheSubclasserNothingToSpoil)
{
    Outsider::join(button.window());
    button.remove();
    Outsider::leave(button.window());
    EXPECT_FALSE(::IsWindow(button.window()));
}

TEST_F(End, ofTheFormUnderALaterSubclasserIsCleanToo)
{
    Outsider::join(button.window());
    ::DestroyWindow(form.window());
    button.remove();
    EXPECT_GT(Outsider::seen, 0);
}

TEST_F(End, ofTheControlInsideTheLaterSubclassersProcedureIsClean)
{
    Outsider::join(button.window());
    button.events().action = [&](auto const&) {
        button.events().action = nullptr;
        button.remove();
    };
    ASSERT_TRUE(kit::moveCursorTo(button.window(), kInsideToo.x, kInsideToo.y));
    EXPECT_TRUE(kit::pumpUntil([&] { return !::IsWindow(button.window()); }));
}

class AtlEnd : public kit::ControlTest, public testing::WithParamInterface<char const*> {
protected:
    kit::FakeForm form;
    AtlButton button{library(), form};
};

TEST_P(AtlEnd, ofTheHostWindowInsideAnEventIsClean)
{
    int times = 0;
    button.events().action = [&](auto const&) {
        if (button.count(GetParam()) > 0 && times++ == 0)
            button.remove();
    };
    kit::moveCursorTo(button.window(), kInside.x, kInside.y);
    kit::pumpPending();
    kit::press(kit::MouseButton::Left);
    kit::release(kit::MouseButton::Left);
    EXPECT_TRUE(kit::pumpUntil([&] { return times > 0; }));
    calmDown();
    EXPECT_FALSE(::IsWindow(button.window()));
    button.events().action = nullptr;
}

INSTANTIATE_TEST_SUITE_P(Inside, AtlEnd,
                         testing::Values("MouseEnter", "MouseMove", "Paint", "MouseDown", "MouseUp", "Click"),
                         [](auto const& tested) { return std::string(tested.param); });

} // namespace
} // namespace quillet::input

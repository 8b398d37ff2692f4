// The mouse over the two controls while the form runs: events, capture and looks.
#include "Box.h"

namespace quillet::box {
namespace {

using kit::MouseButton;

class Mouse : public StartedBoxTest {
protected:
    /// The event's arguments at 10 and 4 pixels.
    static void expectArguments(kit::EventRecorder::Event const& event, int button, int shift)
    {
        EXPECT_THAT(event.types, ElementsAreArray({VT_BYREF | VT_I2, VT_BYREF | VT_I2, VT_BYREF | VT_R4,
                                                   VT_BYREF | VT_R4}));
        EXPECT_EQ(event.values[0].toLong(), button);
        EXPECT_EQ(event.values[1].toLong(), shift);
        float const twips =
            1440.0F / static_cast<float>(::GetDeviceCaps(WindowDc(nullptr).get(), LOGPIXELSX));
        EXPECT_EQ(event.values[2].get().fltVal, 10 * twips);
        EXPECT_EQ(event.values[3].get().fltVal, 4 * twips);
    }
    /// Enters and presses.
    void enterAndPress(MouseButton which = MouseButton::Left)
    {
        box.enter();
        box.press(which);
    }
    COLORREF glyph() const { return box.pixel(kInGlyph); }
    UniqueWindow newEdit(int left, int top, int width, int height) const
    {
        return kit::newEditBox(form.window(), {left, top, left + width, top + height});
    }
};

TEST_P(Mouse, movingRaisesMouseMoveTwiceForAnOptionAndOnceForACheckBox)
{
    box.enter();
    box.events().forget();
    box.send(WM_MOUSEMOVE, {61, 10});
    EXPECT_EQ(box.count("MouseMove"), isOption() ? 2 : 1);
    EXPECT_EQ(box.events().events.size(), isOption() ? 2U : 1U);
}

TEST_P(Mouse, movesTellButtonsShiftAndTwips)
{
    box.send(WM_MOUSEMOVE, {10, 4}, MK_RBUTTON | MK_SHIFT | MK_CONTROL);
    ASSERT_FALSE(box.events().events.empty());
    expectArguments(box.events().events.back(), 2, 3);
}

TEST_P(Mouse, pressesAndReleasesTellButtonShiftAndTwips)
{
    for (auto const& [message, name] :
         {std::pair{UINT{WM_RBUTTONDOWN}, "MouseDown"}, {WM_RBUTTONUP, "MouseUp"}}) {
        box.events().forget();
        box.send(message, {10, 4}, MK_CONTROL);
        ASSERT_EQ(box.count(name), 1);
        expectArguments(box.events().events.front(), 2, 2);
    }
}

TEST_P(Mouse, isHeldFromTheFirstMoveInsideToTheFirstOutside)
{
    box.enter();
    EXPECT_EQ(::GetCapture(), box.inner());
    EXPECT_THAT(box.leave(), ElementsAreArray({"MouseMove"}));
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_P(Mouse, isHeldAndTheLookIsHotWhenMouseMoveIsRaised)
{
    box.setColours(kFore, kFore);
    HWND held = nullptr;
    COLORREF inside = CLR_INVALID;
    kit::Inside const move(box, "MouseMove", [&] {
        if (inside != CLR_INVALID)
            return;
        held = ::GetCapture();
        inside = glyph();
    });
    box.enter();
    EXPECT_EQ(held, box.inner());
    EXPECT_EQ(inside, kLightGrey);
}

TEST_P(Mouse, isHeldOutsideAsLongAsAButtonIsDown)
{
    box.setColours(kFore, kFore);
    for (MouseButton const button : {MouseButton::Left, MouseButton::Right}) {
        enterAndPress(button);
        for (int further = 0; further < 3; ++further) {
            box.during([&] { box.moveTo({kBeside.x + further, kBeside.y}); }, "MouseMove");
            EXPECT_EQ(::GetCapture(), box.inner());
        }
        box.letGo(button);
        if (button != MouseButton::Left) // the system ends the capture with a press of the left one
            box.during([&] { box.moveTo({kBeside.x + 5, kBeside.y}); }, "MouseMove");
        EXPECT_EQ(::GetCapture(), nullptr);
        EXPECT_EQ(glyph(), kWhite);
    }
}

TEST_P(Mouse, thatSomebodyElseTookEndsTheHotLookAsSoonAsItIsGone)
{
    box.setColours(kFore, kFore);
    box.enter();
    ::SetCapture(form.window());
    kit::pumpPending();
    EXPECT_EQ(glyph(), kLightGrey) << "it is still there";
    box.moveTo(kBeside);
    EXPECT_TRUE(kit::pumpUntil([&] { return glyph() == kWhite; }));
    EXPECT_EQ(::GetCapture(), form.window());
    ::ReleaseCapture();
}

TEST_P(Mouse, releasedAfterAPressElsewhereDoesNotClickWhateverWasBefore)
{
    enterAndPress();
    ::SetCapture(form.window());
    box.moveTo(kBeside);
    EXPECT_TRUE(kit::letGo());
    ::ReleaseCapture();
    box.events().forget();
    EXPECT_TRUE(kit::dragFrom(box.inner(), kBeside, kInside));
    EXPECT_THAT(box.letGo(), testing::Not(testing::Contains("Click")));
    EXPECT_EQ(box.value(), 0);
}

TEST_P(Mouse, isNotOverTheBoxUnderAnotherWindow)
{
    UniqueWindow const cover = newEdit(0, 0, 400, 100);
    ::SetWindowPos(cover.get(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    box.moveTo(kInside);
    kit::pumpPending();
    box.send(WM_MOUSEMOVE, kInside);
    EXPECT_NE(::GetCapture(), box.inner());
}

TEST_P(Mouse, coloursTheCaptionWhereTheHotColourDiffers)
{
    box.setColours(kFore, kHot);
    EXPECT_TRUE(box.captionHas(kFore));
    box.enter();
    box.expectCaption(kHot, kFore);
    EXPECT_EQ(glyph(), kWhite);
    box.leave();
    box.expectCaption(kFore, kHot);
}

TEST_P(Mouse, shadesTheGlyphWhereTheHotColourIsTheSame)
{
    box.setColours(kFore, kFore);
    box.enter();
    EXPECT_EQ(glyph(), kLightGrey);
    EXPECT_TRUE(box.captionHas(kFore));
    box.leave();
    EXPECT_EQ(glyph(), kWhite);
    EXPECT_TRUE(box.captionHas(kFore));
}

TEST_P(Mouse, comparesColoursAsStoredAndNotAsShown)
{
    // Both show as the button's text; they differ as values, so the caption is the hot one's business.
    COLORREF const shown = ::GetSysColor(COLOR_BTNTEXT);
    box.put(L"ForeColor", 0x80000012);
    box.put(L"HotForeColor", shown);
    box.enter();
    EXPECT_EQ(glyph(), kWhite);
}

TEST_P(Mouse, clickRaisesDownUpAndClick)
{
    box.enter();
    EXPECT_THAT(box.pressAndLetGo(), ElementsAreArray({"MouseDown", "MouseUp", "Click"}));
    EXPECT_EQ(box.value(), 1);
    EXPECT_EQ(::GetFocus(), box.inner());
}

TEST_P(Mouse, clickOnAChosenOptionRaisesClickAgain)
{
    box.click();
    box.moveTo(kBeside);
    enterAndPress();
    Names const released = box.letGo();
    EXPECT_EQ(std::ranges::count(released, "Click"), 1);
    EXPECT_EQ(box.value(), isOption() ? 1 : 0);
}

TEST_P(Mouse, doubleClickIsTwoClicks)
{
    box.click();
    EXPECT_THAT(box.pressAndLetGo(), ElementsAreArray({"MouseDown", "MouseUp", "Click"}));
    EXPECT_EQ(box.value(), isOption() ? 1 : 0);
}

TEST_P(Mouse, releasedOutsideDoesNotClick)
{
    enterAndPress();
    box.moveTo(kBeside);
    kit::pumpPending();
    Names const released = box.letGo();
    EXPECT_EQ(std::ranges::count(released, "Click"), 0);
    EXPECT_EQ(box.value(), 0);
}

TEST_P(Mouse, draggedOffAndBackRepaintsAtEachEdge)
{
    box.setColours(kFore, kFore);
    enterAndPress();
    EXPECT_EQ(glyph(), kLightGrey);
    box.leave();
    EXPECT_EQ(glyph(), kWhite);
    box.enter();
    EXPECT_EQ(glyph(), kLightGrey);
    box.letGo();
    EXPECT_EQ(box.value(), 1);
}

TEST_P(Mouse, isNotTakenByAReleaseButByTheNextMove)
{
    // The release alone: real input has a move on its heels.
    box.enter();
    box.send(WM_LBUTTONDOWN, kInside, MK_LBUTTON);
    EXPECT_EQ(::GetCapture(), box.inner());
    box.send(WM_LBUTTONUP, kInside);
    EXPECT_EQ(::GetCapture(), nullptr);
    box.send(WM_MOUSEMOVE, kInside);
    EXPECT_EQ(::GetCapture(), box.inner());
}

TEST_P(Mouse, staysWithWhomAnEventGaveItTo)
{
    UniqueWindow const other = newEdit(300, 30, 40, 20);
    for (char const* event : {"Click", "MouseUp"}) {
        kit::Inside const inside(box, event, [&] { ::SetCapture(other.get()); });
        box.enter();
        box.press();
        box.letGo();
        EXPECT_EQ(::GetCapture(), other.get()) << event;
        box.moveTo(kInsideToo);
        kit::pumpPending();
        EXPECT_EQ(::GetCapture(), other.get()) << event;
        ::ReleaseCapture();
        box.moveTo(kBeside);
        kit::pumpPending();
    }
}

TEST_P(Mouse, leavesABoxHotAfterAClickUntilItGoesAway)
{
    box.setColours(kFore, kFore);
    box.click();
    kit::pumpPending();
    EXPECT_EQ(glyph(), kLightGrey);
    box.during([&] { box.moveTo(kInsideToo); }, "MouseMove");
    EXPECT_EQ(::GetCapture(), box.inner());
    EXPECT_EQ(glyph(), kLightGrey);
    box.leave();
    EXPECT_EQ(glyph(), kWhite);
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_P(Mouse, otherButtonsRaiseTheirEventsAndDoNotClick)
{
    box.enter();
    for (MouseButton const button : {MouseButton::Right, MouseButton::Middle})
        EXPECT_THAT(box.pressAndLetGo(button), ElementsAreArray({"MouseDown", "MouseUp"}));
    EXPECT_EQ(box.value(), 0);
}

TEST_P(Mouse, buttonsTellTheirNumber)
{
    box.enter();
    for (auto const& [button, number] :
         {std::pair{MouseButton::Left, 1L}, {MouseButton::Right, 2L}, {MouseButton::Middle, 4L}}) {
        kit::pumpPending();
        box.events().forget();
        kit::press(button);
        kit::pumpUntil([&] { return box.count("MouseDown") > 0; });
        for (auto const& event : box.events().events)
            if (nameOfEvent(event.id) == "MouseDown") {
                EXPECT_EQ(event.values[0].toLong(), number);
            }
        box.letGo(button);
    }
}

TEST_P(Mouse, readsTheToolTipTextAtEachMove)
{
    form.record().forget();
    box.send(WM_MOUSEMOVE, {61, 10});
    EXPECT_EQ(form.record().count("Extender.ToolTipText"), 1);
    box.extender().remove(L"ToolTipText");
    box.events().forget();
    box.send(WM_MOUSEMOVE, {62, 10});
    EXPECT_GE(box.count("MouseMove"), 1); // a host without it is no obstacle
}

TEST_P(Mouse, doesNothingToADisabledBox)
{
    box.disable();
    box.moveTo(kInside);
    kit::press(MouseButton::Left);
    kit::release(MouseButton::Left);
    kit::pumpPending();
    EXPECT_THAT(box.happened(), IsEmpty());
    EXPECT_EQ(box.value(), 0);
    EXPECT_NE(::GetCapture(), box.inner());
}

TEST_P(Mouse, isLetGoByABoxThatIsDisabled)
{
    box.enter();
    EXPECT_EQ(::GetCapture(), box.inner());
    box.disable();
    EXPECT_EQ(::GetCapture(), nullptr);
}

QV_EACH_BOX(Mouse);

} // namespace
} // namespace quillet::box

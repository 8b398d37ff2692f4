// The mouse over the two controls while the form runs: events, capture and looks.
#include "Box.h"

namespace quillet::box {
namespace {

using kit::MouseButton;
using testing::ElementsAre;
using testing::IsEmpty;

class Mouse : public EachBoxTest {
protected:
    Mouse() : box(kind(), library(), form) { box.start(); }

    Box box;
};

TEST_P(Mouse, movingRaisesMouseMoveTwiceForAnOptionAndOnceForACheckBox)
{
    box.enter();
    box.events().forget();
    ::SendMessageW(box.inner(), WM_MOUSEMOVE, 0, MAKELPARAM(61, 10));
    EXPECT_EQ(box.count("MouseMove"), isOption() ? 2 : 1);
    EXPECT_EQ(box.events().events.size(), isOption() ? 2U : 1U);
}

TEST_P(Mouse, movesTellButtonsShiftAndTwips)
{
    ::SendMessageW(box.inner(), WM_MOUSEMOVE, MK_RBUTTON | MK_SHIFT | MK_CONTROL, MAKELPARAM(10, 4));
    ASSERT_FALSE(box.events().events.empty());
    auto const& move = box.events().events.back();
    EXPECT_THAT(move.types,
                ElementsAre(VT_BYREF | VT_I2, VT_BYREF | VT_I2, VT_BYREF | VT_R4, VT_BYREF | VT_R4));
    EXPECT_EQ(move.values[0].toLong(), 2);
    EXPECT_EQ(move.values[1].toLong(), 3);
    HDC const screen = ::GetDC(nullptr);
    float const twips = 1440.0F / static_cast<float>(::GetDeviceCaps(screen, LOGPIXELSX)); // of a pixel
    ::ReleaseDC(nullptr, screen);
    EXPECT_EQ(move.values[2].get().fltVal, 10 * twips);
    EXPECT_EQ(move.values[3].get().fltVal, 4 * twips);
}

TEST_P(Mouse, pressesAndReleasesTellButtonShiftAndTwips)
{
    HDC const screen = ::GetDC(nullptr);
    float const twips = 1440.0F / static_cast<float>(::GetDeviceCaps(screen, LOGPIXELSX)); // of a pixel
    ::ReleaseDC(nullptr, screen);
    for (auto const& [message, name] :
         {std::pair{UINT{WM_RBUTTONDOWN}, "MouseDown"}, std::pair{UINT{WM_RBUTTONUP}, "MouseUp"}}) {
        box.events().forget();
        ::SendMessageW(box.inner(), message, MK_CONTROL, MAKELPARAM(10, 4));
        ASSERT_EQ(box.count(name), 1);
        auto const& event = box.events().events.front();
        EXPECT_THAT(event.types,
                    ElementsAre(VT_BYREF | VT_I2, VT_BYREF | VT_I2, VT_BYREF | VT_R4, VT_BYREF | VT_R4));
        EXPECT_EQ(event.values[0].toLong(), 2);
        EXPECT_EQ(event.values[1].toLong(), 2);
        EXPECT_EQ(event.values[2].get().fltVal, 10 * twips);
        EXPECT_EQ(event.values[3].get().fltVal, 4 * twips);
    }
}

TEST_P(Mouse, isHeldFromTheFirstMoveInsideToTheFirstOutside)
{
    box.enter();
    EXPECT_EQ(::GetCapture(), box.inner());
    EXPECT_THAT(box.leave(), ElementsAre("MouseMove"));
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_P(Mouse, isHeldAndTheLookIsHotWhenMouseMoveIsRaised)
{
    box.setColours(kFore, kFore);
    HWND held = nullptr;
    COLORREF inside = CLR_INVALID;
    box.events().action = [&](auto const& event) {
        if (inside != CLR_INVALID || nameOfEvent(event.id) != "MouseMove")
            return;
        held = ::GetCapture();
        inside = box.pixel(kInGlyph);
    };
    box.enter();
    box.events().action = nullptr;
    EXPECT_EQ(held, box.inner());
    EXPECT_EQ(inside, kLightGrey);
}

TEST_P(Mouse, isHeldOutsideAsLongAsAButtonIsDown)
{
    box.setColours(kFore, kFore);
    for (MouseButton const button : {MouseButton::Left, MouseButton::Right}) {
        box.enter();
        box.press(button);
        for (int further = 0; further < 3; ++further) {
            box.during([&] { box.moveTo({kBeside.x + further, kBeside.y}); }, "MouseMove");
            EXPECT_EQ(::GetCapture(), box.inner());
        }
        box.letGo(button);
        if (button != MouseButton::Left) // the system ends the capture with a press of the left one
            box.during([&] { box.moveTo({kBeside.x + 5, kBeside.y}); }, "MouseMove");
        EXPECT_EQ(::GetCapture(), nullptr);
        EXPECT_EQ(box.pixel(kInGlyph), kWhite);
    }
}

TEST_P(Mouse, thatSomebodyElseTookEndsTheHotLookAsSoonAsItIsGone)
{
    box.setColours(kFore, kFore);
    box.enter();
    ::SetCapture(form.window());
    kit::pumpPending();
    EXPECT_EQ(box.pixel(kInGlyph), kLightGrey) << "it is still there";
    box.moveTo(kBeside);
    EXPECT_TRUE(kit::pumpUntil([&] { return box.pixel(kInGlyph) == kWhite; }));
    EXPECT_EQ(::GetCapture(), form.window());
    ::ReleaseCapture();
}

TEST_P(Mouse, releasedAfterAPressElsewhereDoesNotClickWhateverWasBefore)
{
    box.enter();
    box.press();
    ::SetCapture(form.window());
    box.moveTo(kBeside);
    kit::release(MouseButton::Left);
    EXPECT_TRUE(kit::pumpUntil([] { return ::GetKeyState(VK_LBUTTON) >= 0; }));
    ::ReleaseCapture();
    box.events().forget();
    EXPECT_TRUE(kit::dragFrom(box.inner(), kBeside, kInside));
    EXPECT_THAT(box.letGo(), testing::Not(testing::Contains("Click")));
    EXPECT_EQ(box.value(), 0);
}

TEST_P(Mouse, isNotOverTheBoxUnderAnotherWindow)
{
    UniqueWindow const cover(::CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 0, 0, 400, 100,
                                               form.window(), nullptr, nullptr, nullptr));
    ::SetWindowPos(cover.get(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    box.moveTo(kInside);
    kit::pumpPending();
    ::SendMessageW(box.inner(), WM_MOUSEMOVE, 0, MAKELPARAM(kInside.x, kInside.y));
    EXPECT_NE(::GetCapture(), box.inner());
}

TEST_P(Mouse, coloursTheCaptionWhereTheHotColourDiffers)
{
    box.setColours(kFore, kHot);
    EXPECT_TRUE(box.captionHas(kFore));
    box.enter();
    EXPECT_TRUE(box.captionHas(kHot));
    EXPECT_FALSE(box.captionHas(kFore));
    EXPECT_EQ(box.pixel(kInGlyph), kWhite);
    box.leave();
    EXPECT_TRUE(box.captionHas(kFore));
    EXPECT_FALSE(box.captionHas(kHot));
}

TEST_P(Mouse, shadesTheGlyphWhereTheHotColourIsTheSame)
{
    box.setColours(kFore, kFore);
    box.enter();
    EXPECT_EQ(box.pixel(kInGlyph), kLightGrey);
    EXPECT_TRUE(box.captionHas(kFore));
    box.leave();
    EXPECT_EQ(box.pixel(kInGlyph), kWhite);
    EXPECT_TRUE(box.captionHas(kFore));
}

TEST_P(Mouse, comparesColoursAsStoredAndNotAsShown)
{
    // Both show as the button's text; they differ as values, so the caption is the hot one's business.
    COLORREF const shown = ::GetSysColor(COLOR_BTNTEXT);
    box.put(L"ForeColor", Variant::ofLong(static_cast<long>(0x80000012)));
    box.put(L"HotForeColor", Variant::ofLong(static_cast<long>(shown)));
    box.enter();
    EXPECT_EQ(box.pixel(kInGlyph), kWhite);
}

TEST_P(Mouse, clickRaisesDownUpAndClick)
{
    box.enter();
    Names order = box.press();
    for (std::string const& name : box.letGo())
        order.push_back(name);
    std::erase(order, "MouseMove");
    EXPECT_THAT(order, ElementsAre("MouseDown", "MouseUp", "Click"));
    EXPECT_EQ(box.value(), 1);
    EXPECT_EQ(::GetFocus(), box.inner());
}

TEST_P(Mouse, clickOnAChosenOptionRaisesClickAgain)
{
    box.click();
    box.moveTo(kBeside);
    box.enter();
    box.press();
    Names const released = box.letGo();
    EXPECT_EQ(std::ranges::count(released, "Click"), 1);
    EXPECT_EQ(box.value(), isOption() ? 1 : 0);
}

TEST_P(Mouse, doubleClickIsTwoClicks)
{
    box.click();
    Names order = box.press();
    for (std::string const& name : box.letGo())
        order.push_back(name);
    std::erase(order, "MouseMove");
    EXPECT_THAT(order, ElementsAre("MouseDown", "MouseUp", "Click"));
    EXPECT_EQ(box.value(), isOption() ? 1 : 0);
}

TEST_P(Mouse, releasedOutsideDoesNotClick)
{
    box.enter();
    box.press();
    box.moveTo(kBeside);
    kit::pumpPending();
    Names const released = box.letGo();
    EXPECT_EQ(std::ranges::count(released, "Click"), 0);
    EXPECT_EQ(box.value(), 0);
}

TEST_P(Mouse, draggedOffAndBackRepaintsAtEachEdge)
{
    box.setColours(kFore, kFore);
    box.enter();
    box.press();
    EXPECT_EQ(box.pixel(kInGlyph), kLightGrey);
    box.leave();
    EXPECT_EQ(box.pixel(kInGlyph), kWhite);
    box.enter();
    EXPECT_EQ(box.pixel(kInGlyph), kLightGrey);
    box.letGo();
    EXPECT_EQ(box.value(), 1);
}

TEST_P(Mouse, isNotTakenByAReleaseButByTheNextMove)
{
    // The release alone: real input has a move on its heels.
    box.enter();
    ::SendMessageW(box.inner(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(kInside.x, kInside.y));
    EXPECT_EQ(::GetCapture(), box.inner());
    ::SendMessageW(box.inner(), WM_LBUTTONUP, 0, MAKELPARAM(kInside.x, kInside.y));
    EXPECT_EQ(::GetCapture(), nullptr);
    ::SendMessageW(box.inner(), WM_MOUSEMOVE, 0, MAKELPARAM(kInside.x, kInside.y));
    EXPECT_EQ(::GetCapture(), box.inner());
}

TEST_P(Mouse, staysWithWhomAnEventGaveItTo)
{
    UniqueWindow const other(::CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 300, 30, 40, 20,
                                               form.window(), nullptr, nullptr, nullptr));
    for (char const* event : {"Click", "MouseUp"}) {
        box.events().action = [&](auto const& each) {
            if (nameOfEvent(each.id) == event)
                ::SetCapture(other.get());
        };
        box.enter();
        box.press();
        box.letGo();
        EXPECT_EQ(::GetCapture(), other.get()) << event;
        box.moveTo(kInsideToo);
        kit::pumpPending();
        EXPECT_EQ(::GetCapture(), other.get()) << event;
        box.events().action = nullptr;
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
    EXPECT_EQ(box.pixel(kInGlyph), kLightGrey);
    box.during([&] { box.moveTo(kInsideToo); }, "MouseMove");
    EXPECT_EQ(::GetCapture(), box.inner());
    EXPECT_EQ(box.pixel(kInGlyph), kLightGrey);
    box.leave();
    EXPECT_EQ(box.pixel(kInGlyph), kWhite);
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_P(Mouse, otherButtonsRaiseTheirEventsAndDoNotClick)
{
    box.enter();
    for (MouseButton const button : {MouseButton::Right, MouseButton::Middle}) {
        Names order = box.press(button);
        for (std::string const& name : box.letGo(button))
            order.push_back(name);
        std::erase(order, "MouseMove");
        EXPECT_THAT(order, ElementsAre("MouseDown", "MouseUp"));
    }
    EXPECT_EQ(box.value(), 0);
}

TEST_P(Mouse, buttonsTellTheirNumber)
{
    box.enter();
    for (auto const& [button, number] : {std::pair{MouseButton::Left, 1L}, std::pair{MouseButton::Right, 2L},
                                         std::pair{MouseButton::Middle, 4L}}) {
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
    ::SendMessageW(box.inner(), WM_MOUSEMOVE, 0, MAKELPARAM(61, 10));
    EXPECT_EQ(form.record().count("Extender.ToolTipText"), 1);
    box.extender().remove(L"ToolTipText");
    box.events().forget();
    ::SendMessageW(box.inner(), WM_MOUSEMOVE, 0, MAKELPARAM(62, 10));
    EXPECT_GE(box.count("MouseMove"), 1); // a host without it is no obstacle
}

TEST_P(Mouse, doesNothingToADisabledBox)
{
    box.put(L"Enabled", Variant::ofBool(false));
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
    box.put(L"Enabled", Variant::ofBool(false));
    EXPECT_EQ(::GetCapture(), nullptr);
}

QV_EACH_BOX(Mouse);

} // namespace
} // namespace quillet::box

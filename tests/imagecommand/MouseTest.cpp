// The mouse over an image button: hot or not, what is a click, and somebody else who takes the capture.
#include "Mouse.h"

#include "kit/ModalDialog.h"

namespace quillet::image {
namespace {

using kit::MouseButton;

class ImageHover : public ImageInputTest {};
QV_BOTH_HOSTS(ImageHover);

TEST_P(ImageHover, entersOnceWithTheCaptureAndARepaint)
{
    EXPECT_THAT(button().moveTo(kInside), ElementsAreArray({"MouseEnter", "Paint", "MouseMove"}));
    EXPECT_EQ(::GetCapture(), button().window());
    EXPECT_THAT(button().moveTo(kInsideToo), ElementsAreArray({"MouseMove"}))
        << "inside nothing is repainted";
}

TEST_P(ImageHover, leavesOnceWithoutTheCaptureAndWithARepaint)
{
    button().moveTo(kInside);
    EXPECT_THAT(button().moveTo(kBeside), ElementsAreArray({"MouseExit", "Paint", "MouseMove"}));
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_P(ImageHover, hasTheCaptureWhenItTellsOfEnteringAndNoneWhenItTellsOfLeaving)
{
    HWND entering = nullptr;
    HWND leaving = button().window();
    button().events().action = [&](auto const& event) {
        if (event.id == eventid::command::MouseEnter)
            entering = ::GetCapture();
        if (event.id == eventid::command::MouseExit)
            leaving = ::GetCapture();
    };
    button().moveTo(kInside);
    button().moveTo(kBeside);
    button().events().action = nullptr;
    EXPECT_EQ(entering, button().window());
    EXPECT_EQ(leaving, nullptr);
}

TEST_P(ImageHover, leftButtonPressesAndItsReleaseClicks)
{
    button().moveTo(kInside);
    EXPECT_THAT(button().press(), ElementsAreArray({"Paint", "MouseDown"}));
    EXPECT_THAT(button().moveTo(kInsideToo), ElementsAreArray({"MouseMove"}));
    EXPECT_THAT(button().release(), ElementsAreArray({"Paint", "MouseUp", "Click"}));
    EXPECT_EQ(::GetCapture(), button().window()) << "hover keeps the capture through a click";
}

TEST_P(ImageHover, otherButtonsTellAndNeitherPressNorRepaint)
{
    button().moveTo(kInside);
    EXPECT_THAT(button().press(kit::MouseButton::Right), ElementsAreArray({"MouseDown"}));
    EXPECT_THAT(button().release(kit::MouseButton::Right), ElementsAreArray({"MouseUp"}));
    EXPECT_THAT(button().press(kit::MouseButton::Middle), ElementsAreArray({"MouseDown"}));
    EXPECT_THAT(button().release(kit::MouseButton::Middle), ElementsAreArray({"MouseUp"}));
}

TEST_P(ImageHover, aDoubleClickIsDownUpClickDoubleUp)
{
    button().moveTo(kInside);
    Names all = button().press();
    for (Names const& more :
         {button().release(), button().during([] { kit::press(kit::MouseButton::Left); }, "DblClick"),
          button().release()})
        all.insert(all.end(), more.begin(), more.end());
    std::erase(all, "Paint");
    EXPECT_THAT(all, ElementsAreArray({"MouseDown", "MouseUp", "Click", "DblClick", "MouseUp"}));
}

// Unlike the flat button, this one leaves even while a mouse button is held.
TEST_P(ImageHover, draggedOffWhilePressedLeavesAndForgetsThePress)
{
    button().moveAndPress();
    EXPECT_THAT(button().moveTo(kBeside), ElementsAreArray({"MouseExit", "Paint", "MouseMove"}));
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_THAT(button().moveTo(kInside), ElementsAreArray({"MouseEnter", "Paint", "MouseMove"}));
    kit::pumpPending();
}

TEST_P(ImageHover, repaintsEachMoveOfAPressThatLostItsButton)
{
    button().moveAndPress();
    button().events().forget();
    // A move that says that no button is down, though nobody told of a release.
    button().send(WM_MOUSEMOVE);
    EXPECT_THAT(button().happened(), ElementsAreArray({"Paint", "MouseMove"}));
    button().send(WM_MOUSEMOVE, kInside, MK_LBUTTON | MK_RBUTTON);
    EXPECT_THAT(button().happened(), ElementsAreArray({"Paint", "MouseMove"}))
        << "exactly the left one counts";
    button().send(WM_MOUSEMOVE, kInside, MK_LBUTTON);
    EXPECT_THAT(button().happened(), ElementsAreArray({"MouseMove"}));
    button().release();
}

TEST_P(ImageHover, countsAWindowOnTopEvenAChildAsOutside)
{
    auto const child = kit::newEditBox(button().window(), {0, 0, 30, 40});
    kit::pumpPending();
    button().moveTo(kInside);
    EXPECT_THAT(button().moveTo({10, 20}), ElementsAreArray({"MouseExit", "Paint", "MouseMove"}));
}

TEST_P(ImageHover, tellsButtonShiftAndTheTwipsOfThePlace)
{
    button().send(WM_RBUTTONDOWN, {7, 11}, MK_RBUTTON | MK_SHIFT | MK_CONTROL);
    auto const& event = button().events().events.back();
    ASSERT_EQ(event.id, eventid::command::MouseDown);
    ASSERT_EQ(event.values.size(), 4U);
    EXPECT_EQ(event.values[0].toShort(), 2);
    EXPECT_EQ(event.values[1].toShort(), 3);
    EXPECT_EQ(event.values[2].get().fltVal, static_cast<float>(7 * twipsPerPixel()));
    EXPECT_EQ(event.values[3].get().fltVal, static_cast<float>(11 * twipsPerPixel()));
}

TEST_P(ImageHover, ofADisabledButtonIsNothing)
{
    ASSERT_EQ(button()->put_Enabled(VARIANT_FALSE), S_OK);
    kit::pumpPending();
    button().events().forget();
    button().put(kInside);
    kit::press(kit::MouseButton::Left);
    kit::release(kit::MouseButton::Left);
    kit::pumpPending();
    for (DISPID const id : button().events().ids())
        EXPECT_EQ(id, kPaint);
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_P(ImageHover, whileNotActiveRaisesNothingAndDoesNotRepaint)
{
    ASSERT_EQ(button()->put_Active(VARIANT_FALSE), S_OK);
    button().events().forget();
    for (UINT const message : {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_RBUTTONDOWN})
        button().send(message);
    button().put(kInside);
    EXPECT_THAT(button().happened(), IsEmpty());
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_P(ImageHover, madeInactiveUnderTheCursorGivesTheMouseBackWithoutAWord)
{
    button().moveTo(kInside);
    ASSERT_EQ(::GetCapture(), button().window());
    button().events().forget();
    ASSERT_EQ(button()->put_Active(VARIANT_FALSE), S_OK);
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_THAT(button().happened(), IsEmpty());
}

TEST_P(ImageHover, survivesASinkThatClosesTheButtonInEveryEvent)
{
    button().events().action = [&](auto const&) {
        button().events().action = nullptr;
        query<IOleObject>(button().object())->Close(OLECLOSE_NOSAVE);
    };
    kit::moveCursorTo(button().window(), kInside.x, kInside.y);
    EXPECT_TRUE(kit::pumpUntil([&] { return !button().events().events.empty(); }));
    kit::pumpPending();
    EXPECT_EQ(button()->DrawButton(), S_OK);
}

class ImageClick : public ImageInputTest {
protected:
    /// Presses on the form, drags onto the button and lets go: the names of the events but Paint, MouseMove
    /// and MouseEnter.
    Names draggedOntoAndLetGo()
    {
        button().put(kBeside);
        button().events().forget();
        EXPECT_TRUE(kit::dragFrom(button().window(), kBeside, kInside));
        EXPECT_TRUE(kit::pumpUntil([&] { return button().count("MouseMove") > 0; }));
        Names names = button().release();
        std::erase(names, "Paint");
        return names;
    }
};
QV_BOTH_HOSTS(ImageClick);

TEST_P(ImageClick, needsAPressOfItsOwnAfterOneThatWasDraggedOffAndLetGoOutside)
{
    button().moveAndPress();
    button().moveTo(kBeside);
    EXPECT_TRUE(kit::letGo());
    EXPECT_THAT(draggedOntoAndLetGo(), ElementsAreArray({"MouseUp"}));
}

TEST_P(ImageClick, needsAPressOfItsOwnAfterOneThatOpenedADialog)
{
    button().moveTo(kInside);
    bool opened = false;
    kit::Inside const event(button(), "MouseDown", [&] {
        opened = true;
        kit::runDialog(form.window(), {150, 120}, [&](HWND dialog) {
            kit::moveCursorTo(dialog, 20, 20);
            EXPECT_TRUE(kit::letGo());
        });
    });
    button().press();
    ASSERT_TRUE(opened);
    EXPECT_THAT(draggedOntoAndLetGo(), ElementsAreArray({"MouseUp"}));
}

TEST_P(ImageClick, needsAPressOfItsOwnAfterAMoveWithoutTheButton)
{
    button().moveTo(kInside);
    LPARAM const at = MAKELPARAM(kInside.x, kInside.y);
    for (auto const& [message, keys] :
         {std::pair{UINT{WM_LBUTTONDOWN}, WPARAM{MK_LBUTTON}}, {WM_MOUSEMOVE, MK_RBUTTON}, {WM_LBUTTONUP, 0}})
        ::SendMessageA(button().window(), message, keys, at);
    EXPECT_EQ(button().count("MouseUp"), 1) << "which every release raises";
    EXPECT_EQ(button().count("Click"), 0);
}

TEST_P(ImageClick, ofTheOtherButtonsInQuickSuccessionIsAllMouseDownAndMouseUp)
{
    button().moveTo(kInside);
    for (MouseButton const which : {MouseButton::Right, MouseButton::Middle})
        for (int times = 0; times < 3; ++times) {
            EXPECT_THAT(button().press(which), ElementsAreArray({"MouseDown"})) << times;
            EXPECT_THAT(button().release(which), ElementsAreArray({"MouseUp"})) << times;
        }
}

constexpr COLORREF kHotLook = RGB(23, 45, 67);
constexpr POINT kOnTheFace{60, 20}; // where nothing is drawn but the face

class ImageLostCapture : public ImageInputTest {
protected:
    ImageLostCapture()
    {
        EXPECT_EQ(button()->put_HotBackColor(kHotLook), S_OK);
        button().moveTo(kInside);
    }
    bool isHot()
    {
        return ::GetPixel(WindowDc(button().window()).get(), kOnTheFace.x, kOnTheFace.y) == kHotLook;
    }
};
QV_BOTH_HOSTS(ImageLostCapture);

TEST_P(ImageLostCapture, endsTheHotLookWithMouseExitAsSoonAsTheMouseIsGone)
{
    ::SetCapture(form.window());
    kit::pumpPending();
    EXPECT_TRUE(isHot()) << "the mouse is still there";
    EXPECT_THAT(button().moveTo(kBeside, "MouseExit"), ElementsAreArray({"MouseExit", "Paint"}));
    EXPECT_FALSE(isHot());
}

TEST_P(ImageLostCapture, endsTheHotLookWhileADialogIsOpenThatAClickOpened)
{
    bool hot = true;
    kit::Inside const event(button(), "Click", [&] {
        kit::runDialog(form.window(), {150, 120}, [&](HWND dialog) {
            kit::moveCursorTo(dialog, 20, 20);
            EXPECT_TRUE(kit::pumpUntil([&] { return button().count("MouseExit") > 0; }));
            hot = isHot();
        });
    });
    button().press();
    button().release();
    EXPECT_FALSE(hot);
    EXPECT_THAT(button().moveTo(kInside), ElementsAreArray({"MouseEnter", "Paint", "MouseMove"}));
}

TEST_P(ImageLostCapture, endsWithMouseExitWhenTheMouseComesBackBefore)
{
    // Giving the capture up makes the system look again where the cursor is: that alone may be a move.
    auto const lost = [&] {
        ::ReleaseCapture();
        kit::moveCursorTo(button().window(), kInsideToo.x, kInsideToo.y);
    };
    EXPECT_THAT(button().during(lost, "MouseMove"),
                ElementsAreArray({"MouseExit", "MouseEnter", "Paint", "MouseMove"}));
    EXPECT_THAT(button().moveTo(kBeside), ElementsAreArray({"MouseExit", "Paint", "MouseMove"}));
}

TEST_P(ImageLostCapture, byBecomingInactiveRaisesNothingNotEvenLater)
{
    ASSERT_EQ(button()->put_Active(VARIANT_FALSE), S_OK);
    button().events().forget();
    button().put(kBeside);
    ::SendMessageA(button().window(), WM_MOUSELEAVE, 0, 0);
    ASSERT_EQ(button()->put_Active(VARIANT_TRUE), S_OK);
    ::SendMessageA(button().window(), WM_MOUSELEAVE, 0, 0);
    EXPECT_THAT(button().happened(), IsEmpty());
    EXPECT_THAT(button().moveTo(kInside), ElementsAreArray({"MouseEnter", "Paint", "MouseMove"}));
}

} // namespace
} // namespace quillet::image

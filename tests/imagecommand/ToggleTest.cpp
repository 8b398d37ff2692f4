// Check buttons: what turns them on and off, to the exact edge.
#include "Mouse.h"

namespace quillet::image {
namespace {

class ImageToggle : public ImageInputTest {
protected:
    ImageToggle()
    {
        EXPECT_EQ(button()->put_CheckButton(VARIANT_TRUE), S_OK);
        button().events().forget();
    }
    /// Whether a release of the left button there turns the button over.
    bool togglesAt(int x, int y)
    {
        bool const before = button().isChecked();
        button().send(WM_LBUTTONUP, {x, y});
        return button().isChecked() != before;
    }
};
QV_BOTH_HOSTS(ImageToggle);

TEST_P(ImageToggle, aClickTurnsItOnAndTheNextOff)
{
    button().moveAndPress();
    EXPECT_FALSE(button().isChecked());
    EXPECT_THAT(button().release(), ElementsAreArray({"Paint", "MouseUp", "Click"}));
    EXPECT_TRUE(button().isChecked());
    button().moveTo({40, 10}); // too far from the first press for a double click
    button().press();
    button().release();
    EXPECT_FALSE(button().isChecked());
}

TEST_P(ImageToggle, alreadyShowsWhenMouseUpIsRaised)
{
    button().moveAndPress();
    bool checked = false;
    kit::Inside const event(button(), "MouseUp", [&] { checked = button().isChecked(); });
    button().release();
    EXPECT_TRUE(checked);
}

TEST_P(ImageToggle, isPaintedCheckedAndNotPressedWhenMouseUpIsRaised)
{
    constexpr COLORREF kEdge = RGB(12, 34, 56);
    constexpr COLORREF kHotFace = RGB(23, 45, 67);
    ASSERT_EQ(button()->put_CheckedLightBorderColor(kEdge), S_OK);
    ASSERT_EQ(button()->put_HotBackColor(kHotFace), S_OK);
    button().moveAndPress();
    COLORREF edge = CLR_INVALID;
    COLORREF look = CLR_INVALID;
    kit::Inside const event(button(), "MouseUp", [&] {
        WindowDc const dc(button().window());
        edge = ::GetPixel(dc.get(), 0, 0);
        look = ::GetPixel(dc.get(), 60, 20);
    });
    button().release();
    EXPECT_EQ(edge, kEdge);
    EXPECT_EQ(look, kHotFace);
}

TEST_P(ImageToggle, countsTheRightAndTheBottomEdgeAsInside)
{
    int const right = kPlace.right - kPlace.left;
    int const bottom = kPlace.bottom - kPlace.top;
    EXPECT_TRUE(togglesAt(right, bottom / 2));
    EXPECT_TRUE(togglesAt(right / 2, bottom));
    EXPECT_TRUE(togglesAt(right, bottom));
    EXPECT_FALSE(togglesAt(right + 1, bottom / 2));
    EXPECT_FALSE(togglesAt(right / 2, bottom + 1));
}

TEST_P(ImageToggle, countsTheLeftAndTheTopEdgeAsInside)
{
    EXPECT_TRUE(togglesAt(0, 0));
    EXPECT_TRUE(togglesAt(0, 20));
    EXPECT_TRUE(togglesAt(60, 0));
    EXPECT_FALSE(togglesAt(-1, 20));
    EXPECT_FALSE(togglesAt(60, -1));
}

TEST_P(ImageToggle, aReleaseOutsideClearsThePressAndRepaints)
{
    button().moveAndPress();
    button().events().forget();
    button().send(WM_LBUTTONUP, {-5, 20});
    EXPECT_THAT(button().happened(), ElementsAreArray({"Paint", "MouseUp"})) << "and no Click";
    EXPECT_FALSE(button().isChecked());
    button().send(WM_MOUSEMOVE);
    EXPECT_THAT(button().happened(), ElementsAreArray({"MouseMove"})) << "it is still pressed";
}

TEST_P(ImageToggle, happensWithoutAChangeOfProperties)
{
    button().changes().take();
    EXPECT_TRUE(togglesAt(60, 20));
    EXPECT_THAT(button().changes().take(), IsEmpty());
}

TEST_P(ImageToggle, otherButtonsNever)
{
    for (UINT const message : {WM_RBUTTONUP, WM_MBUTTONUP})
        button().send(message, {60, 20});
    EXPECT_FALSE(button().isChecked());
}

TEST_P(ImageToggle, notWithoutCheckButton)
{
    ASSERT_EQ(button()->put_CheckButton(VARIANT_FALSE), S_OK);
    EXPECT_FALSE(togglesAt(60, 20));
}

TEST_P(ImageToggle, notWhileNotActive)
{
    ASSERT_EQ(button()->put_Active(VARIANT_FALSE), S_OK);
    EXPECT_FALSE(togglesAt(60, 20));
}

TEST_P(ImageToggle, byCodeRaisesNoEventButPaint)
{
    ASSERT_EQ(button()->put_Checked(VARIANT_TRUE), S_OK);
    EXPECT_THAT(button().happened(), ElementsAreArray({"Paint"}));
}

TEST_P(ImageToggle, aSecondPressInQuickSuccessionTurnsItBack)
{
    button().moveAndPress();
    button().release();
    button().during([] { kit::press(kit::MouseButton::Left); }, "DblClick");
    button().release();
    EXPECT_FALSE(button().isChecked());
}

} // namespace
} // namespace quillet::image

// In design mode: no capture, no hot look, no tooltip, and the events that are left.
#include "Box.h"
#include "kit/Painter.h"
#include "kit/UiThread.h"
#include "winsvc/ToolTips.h"

namespace quillet::box {
namespace {

class Design : public EachBoxTest {
protected:
    Design() : box(kind(), library(), form, kPlace, L"Box1", Mode::Design) { box.start(); }

    Box box;
};

TEST_P(Design, movingRaisesMouseMoveOnceForAnOptionAndNeverForACheckBox)
{
    box.events().forget();
    ::SendMessageW(box.inner(), WM_MOUSEMOVE, 0, MAKELPARAM(61, 10));
    EXPECT_EQ(box.count("MouseMove"), isOption() ? 1 : 0);
}

TEST_P(Design, realMovesTakeNoCaptureAndChangeNoLook)
{
    COLORREF const hot = RGB(255, 0, 0);
    box.setColours(RGB(0, 0, 1), hot);
    box.moveTo(kInside);
    kit::pumpPending();
    box.moveTo(kInsideToo);
    kit::pumpPending();
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_FALSE(box.captionHas(hot));
    box.setColours(RGB(0, 0, 1), RGB(0, 0, 1));
    EXPECT_EQ(box.pixel(kInGlyph), kWhite);
}

/// A designer that lets the mouse through gets what a user gets; most keep it for themselves, or freeze
/// events.
TEST_P(Design, pressesAndKeysDoWhatTheyDoAtRunTime)
{
    box.moveTo(kInside);
    kit::pumpPending();
    Names order = box.press();
    for (std::string const& name : box.letGo())
        order.push_back(name);
    std::erase(order, "MouseMove");
    EXPECT_THAT(order, testing::ElementsAre("MouseDown", "MouseUp", "Click"));
    EXPECT_EQ(box.value(), 1);
    EXPECT_EQ(::GetCapture(), nullptr);
    order = box.during([] { kit::typeKey(VK_SPACE); }, "KeyUp");
    std::erase(order, "MouseMove"); // the system tells of the place when a press of space ends
    EXPECT_THAT(order, testing::ElementsAre("KeyDown", "KeyPress", "KeyUp", "Click"));
}

TEST_P(Design, theFocusOnlyPaints)
{
    kit::Canvas before(120, 20);
    kit::readWindow(box.inner(), before);
    ::SetForegroundWindow(form.window());
    for (HWND const window : {box.inner(), box.outer()}) {
        ::SetFocus(form.window());
        ::SetFocus(window);
        EXPECT_TRUE(kit::pumpUntil([&] { return ::GetFocus() == box.inner(); }));
        kit::pumpPending();
        EXPECT_EQ(box.value(), 0);
        EXPECT_EQ(box.count("Click"), 0);
        kit::Canvas focused(120, 20);
        kit::readWindow(box.inner(), focused);
        EXPECT_NE(kit::differences(before, focused), "") << "the focus is not shown";
    }
}

TEST_P(Design, theToolTipTextIsNotAskedFor)
{
    form.record().forget();
    ::SendMessageW(box.inner(), WM_MOUSEMOVE, 0, MAKELPARAM(61, 10));
    EXPECT_EQ(form.record().count("Extender.ToolTipText"), 0);
}

TEST_P(Design, theInnerWindowIsNotSubclassed)
{
    EXPECT_EQ(::GetWindowLongPtrA(box.inner(), GWLP_USERDATA), 0);
}

TEST_P(Design, makesNoToolTipWindow)
{
    kit::onNewThread([this] {
        kit::FakeForm own;
        Box designed(kind(), library(), own, kPlace, L"Box2", Mode::Design);
        designed.start();
        EXPECT_TRUE(winsvc::toolTipWindows().empty());
    });
}

QV_EACH_BOX(Design);

} // namespace
} // namespace quillet::box

// In design mode: no capture, no hot look, no tooltip, and the events that are left.
#include "Box.h"
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

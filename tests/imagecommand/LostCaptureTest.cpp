// A button that is hot while somebody else takes the mouse capture: its look and its events come out right.
#include "Mouse.h"
#include "kit/ModalDialog.h"

namespace quillet::image {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr COLORREF kHotFace = RGB(23, 45, 67);
constexpr POINT kOnTheFace{60, 20}; // where nothing is drawn but the face

class ImageLostCapture : public ImageInputTest {
protected:
    void SetUp() override
    {
        ImageInputTest::SetUp();
        ASSERT_EQ(button()->put_HotBackColor(kHotFace), S_OK);
        button().moveTo(kInside);
    }
    bool isHot()
    {
        WindowDc const dc(button().window());
        return ::GetPixel(dc.get(), kOnTheFace.x, kOnTheFace.y) == kHotFace;
    }
};
QV_BOTH_HOSTS(ImageLostCapture);

TEST_P(ImageLostCapture, endsTheHotLookWithMouseExitAsSoonAsTheMouseIsGone)
{
    ::SetCapture(form.window());
    kit::pumpPending();
    EXPECT_TRUE(isHot()) << "the mouse is still there";
    EXPECT_THAT(
        button().during([&] { kit::moveCursorTo(button().window(), kBeside.x, kBeside.y); }, "MouseExit"),
        ElementsAre("MouseExit", "Paint"));
    EXPECT_FALSE(isHot());
}

TEST_P(ImageLostCapture, endsTheHotLookWhileADialogIsOpenThatAClickOpened)
{
    bool hot = true;
    button().events().action = [&](auto const& event) {
        if (event.id != eventid::command::Click)
            return;
        kit::runDialog(form.window(), {150, 120}, [&](HWND dialog) {
            kit::moveCursorTo(dialog, 20, 20);
            EXPECT_TRUE(kit::pumpUntil([&] { return button().count("MouseExit") > 0; }));
            hot = isHot();
        });
    };
    button().press();
    button().release();
    button().events().action = nullptr;
    EXPECT_FALSE(hot);
    EXPECT_THAT(button().moveTo(kInside), ElementsAre("MouseEnter", "Paint", "MouseMove"));
}

TEST_P(ImageLostCapture, endsWithMouseExitWhenTheMouseComesBackBefore)
{
    // Giving the capture up makes the system look again where the cursor is: that alone may be a move.
    auto const lost = [&] {
        ::ReleaseCapture();
        kit::moveCursorTo(button().window(), kInsideToo.x, kInsideToo.y);
    };
    EXPECT_THAT(button().during(lost, "MouseMove"),
                ElementsAre("MouseExit", "MouseEnter", "Paint", "MouseMove"));
    EXPECT_THAT(button().moveTo(kBeside), ElementsAre("MouseExit", "Paint", "MouseMove"));
}

TEST_P(ImageLostCapture, byBecomingInactiveRaisesNothingNotEvenLater)
{
    ASSERT_EQ(button()->put_Active(VARIANT_FALSE), S_OK);
    button().events().forget();
    kit::moveCursorTo(button().window(), kBeside.x, kBeside.y);
    kit::pumpPending();
    ::SendMessageA(button().window(), WM_MOUSELEAVE, 0, 0);
    ASSERT_EQ(button()->put_Active(VARIANT_TRUE), S_OK);
    ::SendMessageA(button().window(), WM_MOUSELEAVE, 0, 0);
    EXPECT_THAT(button().happened(), IsEmpty());
    EXPECT_THAT(button().moveTo(kInside), ElementsAre("MouseEnter", "Paint", "MouseMove"));
}

} // namespace
} // namespace quillet::image

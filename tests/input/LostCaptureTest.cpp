// A button that is hot while somebody else takes the mouse capture: its look and its events come out right.
#include "Gestures.h"
#include "kit/ModalDialog.h"
#include "kit/Pump.h"

namespace quillet::input {
namespace {

using testing::ElementsAre;

class LostCapture : public HoveredTest {
protected:
    /// What happens when the cursor goes to a place that is not the button's.
    Names left()
    {
        return button.during([&] { kit::moveCursorTo(button.window(), kBeside.x, kBeside.y); }, "MouseExit");
    }
};

TEST_F(LostCapture, endsTheHotLookWithMouseExitAsSoonAsTheMouseIsGone)
{
    ::SetCapture(form.window());
    kit::pumpPending();
    EXPECT_EQ(button.look(), "hot") << "the mouse is still there";
    EXPECT_EQ(button.count("MouseExit"), 0);
    EXPECT_THAT(left(), ElementsAre("MouseExit", "Paint"));
    EXPECT_EQ(button.look(), "normal");
    EXPECT_EQ(::GetCapture(), form.window()) << "whose capture stays";
}

TEST_F(LostCapture, endsTheHotLookWhileADialogIsOpenThatAClickOpened)
{
    std::string look;
    int exits = 0;
    button.events().action = [&](auto const&) {
        if (button.lastEvent() != "Click")
            return;
        button.events().action = nullptr;
        kit::runDialog(form.window(), {150, 120}, [&](HWND dialog) {
            kit::moveCursorTo(dialog, 20, 20);
            EXPECT_TRUE(kit::pumpUntil([&] { return button.count("MouseExit") > 0; }));
            look = button.look();
            exits = button.count("MouseExit");
        });
    };
    pressDown(button);
    letUp(button);
    EXPECT_EQ(look, "normal");
    EXPECT_EQ(exits, 1);
    EXPECT_THAT(enter(button), ElementsAre("MouseEnter", "Paint", "MouseMove"));
}

TEST_F(LostCapture, thatHappensOutsideIsTheEndAtOnce)
{
    pressDown(button);
    dragOff(button);
    EXPECT_THAT(button.during([&] { ::SetCapture(form.window()); }, "MouseExit"),
                ElementsAre("MouseExit", "Paint"));
    kit::release(kit::MouseButton::Left);
    kit::pumpPending();
}

TEST_F(LostCapture, keepsEachMouseEnterWithItsMouseExitWhenTheMouseComesBackBefore)
{
    Names told = {"MouseEnter"};
    button.events().action = [&](auto const&) {
        std::string const name = button.lastEvent();
        if (name == "MouseEnter" || name == "MouseExit")
            told.push_back(name);
    };
    for (POINT const back : {kInsideToo, kInside, kInsideToo}) {
        ::SetCapture(form.window());
        ::ReleaseCapture();
        kit::moveCursorTo(button.window(), kBeside.x, kBeside.y);
        kit::moveCursorTo(button.window(), back.x, back.y);
        EXPECT_TRUE(kit::pumpUntil([&] { return ::GetCapture() == button.window(); }));
    }
    kit::moveCursorTo(button.window(), kBeside.x, kBeside.y);
    EXPECT_TRUE(kit::pumpUntil([&] { return ::GetCapture() == nullptr; }));
    kit::pumpPending();
    ASSERT_EQ(told.size() % 2, 0U);
    for (size_t i = 0; i < told.size(); ++i)
        EXPECT_EQ(told[i], i % 2 ? "MouseExit" : "MouseEnter") << i;
}

TEST_F(LostCapture, toOneselfIsNone)
{
    button.events().forget();
    ::SetCapture(button.window());
    EXPECT_THAT(left(), ElementsAre("MouseExit", "Paint", "MouseMove"));
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(LostCapture, ofAButtonThatIsDisabledUnderTheMouseIsTheEnd)
{
    Names names = button.during([&] { button->put_Enabled(VARIANT_FALSE); }, "MouseExit");
    std::erase(names, "Paint");
    EXPECT_THAT(names, ElementsAre("MouseExit"));
    EXPECT_EQ(button.look(), "disabled");
}

TEST_F(LostCapture, ofAHiddenButtonRaisesNothing)
{
    ::ReleaseCapture();
    button.hosted().doVerb(OLEIVERB_HIDE);
    kit::moveCursorTo(form.window(), 200, 200);
    button.events().forget();
    ::SendMessageA(button.window(), WM_MOUSELEAVE, 0, 0);
    kit::pumpPending();
    EXPECT_THAT(button.happened(), ElementsAre());
}

TEST_F(LostCapture, isNotWhatAWindowOfItsOwnMouseSays)
{
    button.events().forget();
    ::SendMessageA(button.window(), WM_MOUSELEAVE, 0, 0);
    EXPECT_THAT(button.happened(), ElementsAre()) << "it has the capture: the next move tells";
    EXPECT_THAT(left(), ElementsAre("MouseExit", "Paint", "MouseMove"));
}

} // namespace
} // namespace quillet::input

// What the mouse events hand to their sinks: button, shift state and place.
#include "Button.h"
#include "kit/Pump.h"

#include <algorithm>
#include <memory>

namespace quillet::input {
namespace {

using kit::MouseButton;
using testing::Each;
using testing::ElementsAreArray;
using testing::Field;
using testing::SizeIs;

constexpr DISPID kMouseDown = eventid::command::MouseDown;
constexpr DISPID kMouseMove = eventid::command::MouseMove;
constexpr DISPID kMouseUp = eventid::command::MouseUp;
constexpr VARTYPE kShortByReference = VT_I2 | VT_BYREF;
constexpr VARTYPE kSingleByReference = VT_R4 | VT_BYREF;

/// A key that is known to be down. A mouse message reads the thread's key state, which follows the keys only
/// as their messages are taken.
std::unique_ptr<HeldKey> heldForTheMouse(BYTE key)
{
    auto held = std::make_unique<HeldKey>(key);
    EXPECT_TRUE(kit::pumpUntil([&] {
        if (::GetAsyncKeyState(key) >= 0) { // let go for an earlier move of the pointer, as below
            held.reset();
            held = std::make_unique<HeldKey>(key);
        }
        return ::GetKeyState(key) < 0;
    }));
    return held;
}

class MouseEventArguments : public HoveredTest {
protected:
    /// The last event of that kind since the events were last forgotten.
    kit::EventRecorder::Event last(DISPID id)
    {
        auto const& events = button.events().events;
        auto const found =
            std::find_if(events.rbegin(), events.rend(), [id](auto const& e) { return e.id == id; });
        EXPECT_NE(found, events.rend());
        return found == events.rend() ? kit::EventRecorder::Event{} : *found;
    }
    short buttonOf(DISPID id) { return last(id).values.at(0).toShort(); }
    short shiftOf(DISPID id) { return last(id).values.at(1).toShort(); }
    void forgetAndAwait(DISPID id, std::function<void()> const& act)
    {
        settle(button);
        act();
        ASSERT_TRUE(kit::pumpUntil([&] { return button.events().count(id) > 0; }));
        kit::pumpPending();
    }
    void press(MouseButton which)
    {
        forgetAndAwait(kMouseDown, [which] { kit::press(which); });
    }
    void release(MouseButton which)
    {
        forgetAndAwait(kMouseUp, [which] { kit::release(which); });
    }
    void move(int x, int y)
    {
        forgetAndAwait(kMouseMove, [&] { kit::moveCursorTo(button.window(), x, y); });
    }
    /// Some systems let go of keys that no keyboard holds when the pointer itself moves.
    void moveByMessage(POINT to, WPARAM keys)
    {
        button.events().forget();
        ::SendMessageW(button.window(), WM_MOUSEMOVE, keys, MAKELPARAM(to.x, to.y));
    }
    /// Where a pixel is in twips.
    static float twips(int pixels)
    {
        constexpr float kTwipsPerInch = 1440;
        WindowDc const screen(nullptr); // its pixels are square
        return static_cast<float>(pixels) * kTwipsPerInch /
               static_cast<float>(::GetDeviceCaps(screen.get(), LOGPIXELSX));
    }
    void expectPlace(DISPID id, int x, int y)
    {
        auto const event = last(id);
        ASSERT_THAT(event.values, SizeIs(4));
        EXPECT_EQ(event.values[2].get().fltVal, twips(x));
        EXPECT_EQ(event.values[3].get().fltVal, twips(y));
    }
};

TEST_F(MouseEventArguments, areTwoIntegersAndTwoSinglesByReference)
{
    move(kInsideToo.x, kInsideToo.y);
    auto const types =
        ElementsAreArray({kShortByReference, kShortByReference, kSingleByReference, kSingleByReference});
    EXPECT_THAT(last(kMouseMove).types, types);
    press(MouseButton::Left);
    EXPECT_THAT(last(kMouseDown).types, types);
    release(MouseButton::Left);
    EXPECT_THAT(last(kMouseUp).types, types);
}

TEST_F(MouseEventArguments, ofTheOtherEventsAreNone)
{
    button.events().forget();
    press(MouseButton::Left);
    auto events = button.events().events;
    release(MouseButton::Left);
    events.insert(events.end(), button.events().events.begin(), button.events().events.end());
    std::erase_if(events, [](auto const& each) { return each.id >= kMouseDown; });
    ASSERT_FALSE(events.empty());
    EXPECT_THAT(events, Each(Field(&kit::EventRecorder::Event::values, SizeIs(0))));
}

TEST_F(MouseEventArguments, tellThePlaceInTwipsFromTheButtonsCorner)
{
    move(0, 0);
    expectPlace(kMouseMove, 0, 0);
    move(7, 13);
    expectPlace(kMouseMove, 7, 13);
    press(MouseButton::Left);
    expectPlace(kMouseDown, 7, 13);
    release(MouseButton::Left);
    expectPlace(kMouseUp, 7, 13);
}

TEST_F(MouseEventArguments, tellANegativePlaceLeftOfAndAboveTheButton)
{
    press(MouseButton::Left);
    move(-9, -4);
    expectPlace(kMouseMove, -9, -4);
    release(MouseButton::Left);
    expectPlace(kMouseUp, -9, -4);
}

TEST_F(MouseEventArguments, tellWhichButtonWentDownAndUp)
{
    struct Row {
        MouseButton which;
        short expected;
    };
    for (Row const row :
         {Row{MouseButton::Left, 1}, Row{MouseButton::Right, 2}, Row{MouseButton::Middle, 4}}) {
        press(row.which);
        EXPECT_EQ(buttonOf(kMouseDown), row.expected);
        release(row.which);
        EXPECT_EQ(buttonOf(kMouseUp), row.expected);
    }
}

TEST_F(MouseEventArguments, ofAMoveTellAllButtonsThatAreDown)
{
    move(kInsideToo.x, kInsideToo.y);
    EXPECT_EQ(buttonOf(kMouseMove), 0);
    press(MouseButton::Left);
    move(kInside.x, kInside.y);
    EXPECT_EQ(buttonOf(kMouseMove), 1);
    press(MouseButton::Right);
    move(kInsideToo.x, kInsideToo.y);
    EXPECT_EQ(buttonOf(kMouseMove), 1 + 2);
    press(MouseButton::Middle);
    move(kInside.x, kInside.y);
    EXPECT_EQ(buttonOf(kMouseMove), 1 + 2 + 4);
    release(MouseButton::Left);
    release(MouseButton::Right);
    release(MouseButton::Middle);
    move(kInsideToo.x, kInsideToo.y);
    EXPECT_EQ(buttonOf(kMouseMove), 0);
}

TEST_F(MouseEventArguments, tellShiftControlAndAlt)
{
    struct Row {
        BYTE key;
        WPARAM inMessage;
        short expected;
    };
    for (Row const row : {Row{VK_SHIFT, MK_SHIFT, 1}, Row{VK_CONTROL, MK_CONTROL, 2}, Row{VK_MENU, 0, 4}}) {
        auto held = heldForTheMouse(row.key);
        press(MouseButton::Left);
        EXPECT_EQ(shiftOf(kMouseDown), row.expected);
        release(MouseButton::Left);
        EXPECT_EQ(shiftOf(kMouseUp), row.expected);
        moveByMessage(kInsideToo, row.inMessage);
        EXPECT_EQ(shiftOf(kMouseMove), row.expected);
        held.reset();
        move(kInsideToo.x, kInsideToo.y);
        move(kInside.x, kInside.y);
    }
    EXPECT_EQ(shiftOf(kMouseMove), 0);
}

// The test is one of bits: (Button = 1) And (Not Shift). No ordinary shift state makes it fail.
TEST_F(MouseEventArguments, withAnyShiftStateMakeALeftPressThePressedLookAndAReleaseTheEndOfIt)
{
    constexpr BYTE kKeys[] = {VK_SHIFT, VK_CONTROL, VK_MENU};
    for (unsigned state = 0; state < 8; ++state) {
        std::vector<std::unique_ptr<HeldKey>> held;
        for (unsigned bit = 0; bit < 3; ++bit)
            if (state & 1U << bit)
                held.push_back(heldForTheMouse(kKeys[bit]));
        press(MouseButton::Left);
        EXPECT_EQ(shiftOf(kMouseDown), static_cast<short>(state));
        EXPECT_EQ(button.look(), "pressed") << "shift state " << state;
        release(MouseButton::Left);
        EXPECT_EQ(button.look(), "hot") << "shift state " << state;
        // No two of these presses are a double click.
        move(kInsideToo.x, kInsideToo.y);
        press(MouseButton::Right);
        release(MouseButton::Right);
        move(kInside.x, kInside.y);
    }
}

TEST_F(MouseEventArguments, thatASinkChangesChangeNothingForTheButton)
{
    // A second sink that writes over what it is given.
    class Scribbler final : public kit::DispatchCounterpart<IDispatch> {
    public:
        STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT*, EXCEPINFO*,
                            UINT*) override
        {
            for (UINT i = 0; i < arguments->cArgs; ++i)
                if (arguments->rgvarg[i].vt == kShortByReference)
                    *arguments->rgvarg[i].piVal = -1;
                else if (arguments->rgvarg[i].vt == kSingleByReference)
                    *arguments->rgvarg[i].pfltVal = -1.0F;
            return S_OK;
        }
    };
    auto const scribbler = kit::make<Scribbler>();
    kit::Connection const connection(button.as<IUnknown>().get(), kQvFlatCommandEvents, scribbler->unknown());
    press(MouseButton::Left);
    EXPECT_EQ(button.look(), "pressed");
    Names const names = letUp(button);
    EXPECT_THAT(names, ElementsAreArray({"Paint", "MouseUp", "Click"}));
    EXPECT_EQ(button.look(), "hot");
}

} // namespace
} // namespace quillet::input

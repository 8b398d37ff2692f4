// What a user does with a mouse to one button, each gesture awaited by what it raises.
#pragma once

#include "Button.h"
#include "kit/Input.h"

namespace quillet::input {

/// Moves the cursor onto the button, which is to notice it for the first time.
Names enter(Button& button);
/// Moves it on inside.
Names moveInside(Button& button, POINT to = kInsideToo);
/// Moves it off the button, which has the capture and notices.
Names leave(Button& button);
/// The same with a button held down: no MouseExit is to be expected.
Names dragOff(Button& button);
Names dragBack(Button& button);

Names pressDown(Button& button, kit::MouseButton which = kit::MouseButton::Left);
Names letUp(Button& button, kit::MouseButton which = kit::MouseButton::Left);

/// What happens until the key has gone through the window that has the focus.
Names typed(Button& button, BYTE virtualKey);

/// Holds a key down for one scope.
class HeldKey {
public:
    explicit HeldKey(BYTE virtualKey);
    ~HeldKey();
    HeldKey(HeldKey const&) = delete;
    HeldKey& operator=(HeldKey const&) = delete;

private:
    BYTE m_key;
};

/// A button in a form, with the focus and under the cursor.
class HoveredTest : public kit::ControlTest {
protected:
    kit::FakeForm form;
    FormButton button{library(), form};

    void SetUp() override;
    void TearDown() override;
};

/// Acts, and waits until a message of that number has been taken from the thread's queue and handled.
bool actUntilHandled(UINT message, std::function<void()> const& act);

} // namespace quillet::input

// What a user does with a mouse to one button, each gesture awaited by what it raises.
#include "Gestures.h"

#include "kit/MessageWatch.h"
#include "kit/Pump.h"

namespace quillet::input {

namespace {

void moveTo(Button const& button, POINT at) { EXPECT_TRUE(kit::moveCursorTo(button.window(), at.x, at.y)); }

void sendKey(BYTE key, DWORD flags)
{
    ::keybd_event(key, static_cast<BYTE>(::MapVirtualKeyW(key, MAPVK_VK_TO_VSC)), flags, 0);
}

} // namespace

Names enter(Button& button)
{
    return button.during([&] { moveTo(button, kInside); }, "MouseMove");
}

Names moveInside(Button& button, POINT to)
{
    return button.during([&] { moveTo(button, to); }, "MouseMove");
}

Names leave(Button& button)
{
    return button.during([&] { moveTo(button, kBeside); }, "MouseMove");
}

Names dragOff(Button& button) { return leave(button); }

Names dragBack(Button& button) { return enter(button); }

Names pressDown(Button& button, kit::MouseButton which)
{
    return button.during([&] { kit::press(which); }, "MouseDown");
}

Names letUp(Button& button, kit::MouseButton which)
{
    return button.during([&] { kit::release(which); }, "MouseUp");
}

bool actUntilHandled(UINT message, std::function<void()> const& act)
{
    bool seen = false;
    kit::MessageWatch const watch(kit::Passing::Posted,
                                  [&](MSG const& passing) { seen = seen || passing.message == message; });
    act();
    bool const came = kit::pumpUntil([&] { return seen; });
    kit::pumpPending();
    return came;
}

Names typed(Button& button, BYTE virtualKey)
{
    kit::pumpPending();
    button.events().forget();
    EXPECT_TRUE(actUntilHandled(WM_KEYUP, [&] { kit::typeKey(virtualKey); }));
    return button.happened();
}

HeldKey::HeldKey(BYTE virtualKey) : m_key(virtualKey) { sendKey(m_key, 0); }

HeldKey::~HeldKey() { sendKey(m_key, KEYEVENTF_KEYUP); }

void HoveredTest::SetUp()
{
    ControlTest::SetUp();
    button.start();
    ASSERT_TRUE(kit::focus(button.window()));
    enter(button);
}

void HoveredTest::TearDown()
{
    button.events().action = nullptr;
    ::ReleaseCapture();
    EXPECT_TRUE(kit::moveCursorAway());
    kit::pumpPending();
}

} // namespace quillet::input

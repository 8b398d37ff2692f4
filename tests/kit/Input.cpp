// Real input: the mouse pointer moved, buttons pressed, keys typed.
#include "kit/Input.h"

#include "kit/Pump.h"

namespace quillet::kit {

namespace {

constexpr POINT kAway{1200, 1000}; // outside every test window

/// By button: what goes down, and what comes up.
constexpr DWORD kFlags[][2] = {{MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP},
                               {MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP},
                               {MOUSEEVENTF_MIDDLEDOWN, MOUSEEVENTF_MIDDLEUP}};

bool moveCursor(POINT target)
{
    ::SetCursorPos(target.x, target.y);
    return pumpUntil([target] {
        POINT now;
        return ::GetCursorPos(&now) && now.x == target.x && now.y == target.y;
    });
}

} // namespace

bool moveCursorTo(HWND window, int x, int y)
{
    POINT point{x, y};
    ::ClientToScreen(window, &point);
    return moveCursor(point);
}

bool moveCursorAway() { return moveCursor(kAway); }

void press(MouseButton button) { ::mouse_event(kFlags[static_cast<int>(button)][0], 0, 0, 0, 0); }

void release(MouseButton button) { ::mouse_event(kFlags[static_cast<int>(button)][1], 0, 0, 0, 0); }

void sendMouse(HWND window, POINT at, std::initializer_list<std::pair<UINT, WPARAM>> messages)
{
    for (auto const& [message, keys] : messages)
        ::SendMessageA(window, message, keys, MAKELPARAM(at.x, at.y));
}

bool letGo()
{
    release(MouseButton::Left);
    return pumpUntil([] { return ::GetKeyState(VK_LBUTTON) >= 0; });
}

bool dragFrom(HWND window, POINT from, POINT to)
{
    if (!moveCursorTo(window, from.x, from.y))
        return false;
    pumpPending();
    press(MouseButton::Left);
    bool const heard = pumpUntil([] { return ::GetKeyState(VK_LBUTTON) < 0; });
    return moveCursorTo(window, to.x, to.y) && heard;
}

void typeKey(BYTE virtualKey)
{
    auto const scanCode = static_cast<BYTE>(::MapVirtualKeyW(virtualKey, MAPVK_VK_TO_VSC));
    ::keybd_event(virtualKey, scanCode, 0, 0);
    ::keybd_event(virtualKey, scanCode, KEYEVENTF_KEYUP, 0);
}

bool focus(HWND window)
{
    ::SetForegroundWindow(::GetAncestor(window, GA_ROOT));
    ::SetFocus(window);
    return pumpUntil([window] { return ::GetFocus() == window; });
}

} // namespace quillet::kit

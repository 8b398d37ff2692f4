// Real input: the mouse pointer moved, buttons pressed, keys typed.
#pragma once

#include <windows.h>

#include <initializer_list>
#include <utility>

namespace quillet::kit {

/// Moves the mouse pointer to a point of a window and waits until it is there.
bool moveCursorTo(HWND window, int x, int y);
/// Moves it out of the way of every test window.
bool moveCursorAway();

enum class MouseButton { Left, Right, Middle };
void press(MouseButton button);
void release(MouseButton button);
/// Lets the left button go and waits until the thread has heard of it.
bool letGo();
/// Presses the left button over a point of a window, waits until the thread has heard of it, and moves the
/// cursor to another point: the beginning of a drag. False where the system does not follow.
bool dragFrom(HWND window, POINT from, POINT to);

/// Sends mouse messages with what they say is held down, all at one point: no real input.
void sendMouse(HWND window, POINT at, std::initializer_list<std::pair<UINT, WPARAM>> messages);

/// Presses and releases a key.
void typeKey(BYTE virtualKey);

/// Gives a window the focus and waits until it has it.
bool focus(HWND window);

} // namespace quillet::kit

// Mouse messages taken apart: which button, what happened to it, and the arguments of a mouse event.
#include "surface/window/MouseMessage.h"

#include <windowsx.h>

namespace quillet {

namespace {

using What = ButtonMessage::What;

constexpr ButtonMessage kMessages[] = {
    {WM_LBUTTONDOWN, MouseButtons::kLeft, What::Down},
    {WM_LBUTTONUP, MouseButtons::kLeft, What::Up},
    {WM_LBUTTONDBLCLK, MouseButtons::kLeft, What::Double},
    {WM_RBUTTONDOWN, MouseButtons::kRight, What::Down},
    {WM_RBUTTONUP, MouseButtons::kRight, What::Up},
    {WM_RBUTTONDBLCLK, MouseButtons::kRight, What::Double},
    {WM_MBUTTONDOWN, MouseButtons::kMiddle, What::Down},
    {WM_MBUTTONUP, MouseButtons::kMiddle, What::Up},
    {WM_MBUTTONDBLCLK, MouseButtons::kMiddle, What::Double},
};

constexpr int kShift = 1;
constexpr int kControl = 2;
constexpr int kAlt = 4;

bool isDown(int key) noexcept { return ::GetKeyState(key) < 0; }

short shiftOfMouse(WPARAM keys) noexcept
{
    return static_cast<short>(((keys & MK_SHIFT) ? kShift : 0) | ((keys & MK_CONTROL) ? kControl : 0) |
                              (isDown(VK_MENU) ? kAlt : 0));
}

} // namespace

ButtonMessage const* buttonMessage(UINT message) noexcept
{
    for (ButtonMessage const& row : kMessages)
        if (row.message == message)
            return &row;
    return nullptr;
}

short heldButtons(WPARAM keys) noexcept
{
    return static_cast<short>(((keys & MK_LBUTTON) ? MouseButtons::kLeft : 0) |
                              ((keys & MK_RBUTTON) ? MouseButtons::kRight : 0) |
                              ((keys & MK_MBUTTON) ? MouseButtons::kMiddle : 0));
}

MouseArguments mouseArguments(TwipsPerPixel const& twips, short button, WPARAM keys, LPARAM at) noexcept
{
    return {button, shiftOfMouse(keys), static_cast<float>(GET_X_LPARAM(at) * twips.x),
            static_cast<float>(GET_Y_LPARAM(at) * twips.y)};
}

short shiftOfKeys() noexcept
{
    return static_cast<short>((isDown(VK_SHIFT) ? kShift : 0) | (isDown(VK_CONTROL) ? kControl : 0) |
                              (isDown(VK_MENU) ? kAlt : 0));
}

} // namespace quillet

// Mouse messages taken apart: which button, what happened to it, and the arguments of a mouse event.
#pragma once

#include "base/Scale.h"

#include <windows.h>

namespace quillet {

/// Mouse buttons of the mouse handlers: left 1, right 2, middle 4. Shift states: shift 1, control 2, alt 4.
/// Coordinates are twips from the window's top left corner.
struct MouseArguments {
    short button;
    short shift;
    float x;
    float y;
};

struct MouseButtons {
    static constexpr short kLeft = 1;
    static constexpr short kRight = 2;
    static constexpr short kMiddle = 4;
};

/// A message that a mouse button causes.
struct ButtonMessage {
    UINT message;
    short button;
    enum class What { Down, Up, Double } what;
};

/// The row of a message; null for one that no mouse button causes.
ButtonMessage const* buttonMessage(UINT message) noexcept;

/// The buttons held, as mouse messages tell them.
short heldButtons(WPARAM keys) noexcept;

MouseArguments mouseArguments(TwipsPerPixel const& twips, short button, WPARAM keys, LPARAM at) noexcept;

/// The shift state that belongs to the key message being handled.
short shiftOfKeys() noexcept;

} // namespace quillet

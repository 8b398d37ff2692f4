// The hidden window that surfaces of a thread live under while no container shows them.
#pragma once

#include <windows.h>

namespace quillet {

/// Joins the calling thread's surfaces: the parking window, made for the first of them.
HWND enterParking();
/// Leaves them; the last one takes the parking window along.
void leaveParking() noexcept;

/// The calling thread's parking window, made again if somebody destroyed it. For a surface that has joined.
HWND parkingWindow();

} // namespace quillet

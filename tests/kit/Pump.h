// Handling window messages until something has happened: the tests' only way of waiting.
#pragma once

#include <windows.h>

#include <functional>

namespace quillet::kit {

constexpr DWORD kPumpLimit = 5000; // milliseconds

/// Handles messages until condition holds; false when it does not within the limit.
bool pumpUntil(std::function<bool()> const& condition, DWORD limit = kPumpLimit);

/// Handles the messages that are there, and paints what waits to be painted.
void pumpPending();

} // namespace quillet::kit

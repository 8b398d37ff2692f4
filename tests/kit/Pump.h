// Handling window messages until something has happened: the tests' only way of waiting.
#pragma once

#include <windows.h>

#include <functional>

namespace quillet::kit {

constexpr DWORD kPumpLimit = 5000; // milliseconds

/// Handles the messages that are there, and paints what waits to be painted.
inline void pumpPending()
{
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
}

/// Handles messages until condition holds; false when it does not within the limit.
inline bool pumpUntil(std::function<bool()> const& condition, DWORD limit = kPumpLimit)
{
    constexpr DWORD kLookAgain = 10; // milliseconds: a condition may come true without a message
    ULONGLONG const end = ::GetTickCount64() + limit;
    for (;;) {
        pumpPending();
        if (condition())
            return true;
        if (::GetTickCount64() >= end)
            return false;
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, kLookAgain, QS_ALLINPUT);
    }
}

} // namespace quillet::kit

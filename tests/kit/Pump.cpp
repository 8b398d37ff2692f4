// Handling window messages until something has happened: the tests' only way of waiting.
#include "kit/Pump.h"

namespace quillet::kit {

namespace {

constexpr DWORD kLookAgain = 10; // milliseconds: a condition may come true without a message

} // namespace

void pumpPending()
{
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
}

bool pumpUntil(std::function<bool()> const& condition, DWORD limit)
{
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

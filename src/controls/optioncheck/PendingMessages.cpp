// Handling waiting messages in the middle of something else.
#include "controls/optioncheck/PendingMessages.h"

#include "surface/window/ThreadState.h"

#include <windows.h>

namespace quillet {

void letMessagesRun()
{
    ThreadState& state = threadState();
    // Each control of a form may ask for this while it paints: nested, they would use up the stack.
    if (state.lettingMessagesRun)
        return;
    struct Running {
        bool& flag;
        explicit Running(bool& running) noexcept : flag(running) { flag = true; }
        ~Running() { flag = false; }
    } const running(state.lettingMessagesRun);
    // Keys and mouse wait for the host's own loop, which has to see them first: a Tab would be lost here.
    constexpr UINT kWhat = PM_REMOVE | PM_QS_PAINT | PM_QS_POSTMESSAGE | PM_QS_SENDMESSAGE;
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, kWhat)) {
        if (message.message == WM_QUIT) { // meant for the loop that runs the thread
            ::PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        ::DispatchMessageW(&message);
    }
}

} // namespace quillet

// Letting the messages that wait run, in the middle of something.
#include "surface/PendingMessages.h"

#include "surface/ThreadState.h"

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
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) { // meant for the loop that runs the thread
            ::PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
}

} // namespace quillet

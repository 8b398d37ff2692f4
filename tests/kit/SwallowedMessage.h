// A host that subclassed a control's window last and keeps one kind of message to itself.
#pragma once

#include <windows.h>

namespace quillet::kit {

/// For one scope, of one window on a thread.
class SwallowedMessage {
public:
    SwallowedMessage(HWND window, UINT message);
    ~SwallowedMessage();
    SwallowedMessage(SwallowedMessage const&) = delete;
    SwallowedMessage& operator=(SwallowedMessage const&) = delete;

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND m_window;
    UINT m_message;
    WNDPROC m_before;
};

} // namespace quillet::kit

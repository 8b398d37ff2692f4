// The messages of a thread's windows: seen as they pass, or one kind kept by a host that subclassed last.
#pragma once

#include "base/Handles.h"
#include "kit/NotCopied.h"

#include <windows.h>

#include <functional>

namespace quillet::kit {

/// Which messages a watch sees: those taken from the thread's queue, or those sent to its windows.
enum class Passing { Posted, Sent };

/// Calls back for each message of the calling thread, before its window sees it. One of a kind at a time.
class MessageWatch : NotCopied {
public:
    using Seen = std::function<void(MSG const&)>;

    MessageWatch(Passing kind, Seen seen);
    ~MessageWatch();

private:
    static LRESULT CALLBACK posted(int code, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK sent(int code, WPARAM wParam, LPARAM lParam);

    Seen& m_seen;
    HHOOK m_hook;
};

/// Whether the window is of that class.
bool isOfClass(HWND window, wchar_t const* className);

/// A host that subclassed a window last and keeps one kind of message to itself: for one scope, of one window
/// on a thread.
class SwallowedMessage : NotCopied {
public:
    SwallowedMessage(HWND window, UINT message);
    ~SwallowedMessage();

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND m_window;
    UINT m_message;
    WNDPROC m_before;
};

} // namespace quillet::kit

// Seeing the messages of a thread's windows as they pass, without being in their way.
#pragma once

#include "base/Handles.h"

#include <windows.h>

#include <functional>

namespace quillet::kit {

/// Which messages a watch sees: those taken from the thread's queue, or those sent to its windows.
enum class Passing { Posted, Sent };

/// Calls back for each message of the calling thread, before its window sees it. One of a kind at a time.
class MessageWatch {
public:
    using Seen = std::function<void(MSG const&)>;

    MessageWatch(Passing kind, Seen seen);
    ~MessageWatch();
    MessageWatch(MessageWatch const&) = delete;
    MessageWatch& operator=(MessageWatch const&) = delete;

private:
    static LRESULT CALLBACK posted(int code, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK sent(int code, WPARAM wParam, LPARAM lParam);

    Seen& m_seen;
    HHOOK m_hook;
};

/// Whether the window is of that class.
bool isOfClass(HWND window, wchar_t const* className);

} // namespace quillet::kit

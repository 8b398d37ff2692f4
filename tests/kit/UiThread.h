// User-interface threads of a test's own: what the component keeps per thread begins afresh there.
#pragma once

#include <windows.h>

#include <functional>

namespace quillet::kit {

/// A thread with an apartment that handles messages until it is told what to do, or to end.
class UiThread {
public:
    UiThread();
    ~UiThread();
    UiThread(UiThread const&) = delete;
    UiThread& operator=(UiThread const&) = delete;

    /// Runs the body on the thread and waits for its end.
    void run(std::function<void()> const& body);

private:
    void live();
    static DWORD WINAPI begin(void* self);

    HANDLE m_ready;
    DWORD m_id = 0;
    HANDLE m_thread;
};

/// Runs one body on a thread that nothing has happened on yet.
void onNewThread(std::function<void()> const& body);

} // namespace quillet::kit

// User-interface threads of a test's own: what the component keeps per thread begins afresh there.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

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

/// Like TEST_F; the body runs where the suite's onNewThread runs it.
#define TEST_ON_NEW_THREAD(Suite, title)                                                                     \
    class Suite##_##title : public Suite {                                                                   \
        void TestBody() override                                                                             \
        {                                                                                                    \
            onNewThread([this] { onThread(); });                                                             \
        }                                                                                                    \
        void onThread();                                                                                     \
    };                                                                                                       \
    [[maybe_unused]] testing::TestInfo* const k##Suite##_##title =                                           \
        testing::RegisterTest(#Suite, #title, nullptr, nullptr, __FILE__, __LINE__,                          \
                              []() -> Suite* { return new Suite##_##title; });                               \
    void Suite##_##title::onThread()

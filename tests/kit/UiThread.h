// User-interface threads of a test's own: what the component keeps per thread begins afresh there.
#pragma once

#include "kit/NotCopied.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <functional>

namespace quillet::kit {

/// A thread with an apartment that handles messages until it is told what to do, or to end.
class UiThread : NotCopied {
public:
    UiThread();
    ~UiThread();

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

/// A test of a suite whose fixture lives and dies on the suite's own new thread.
template <class Suite> class OnNewThread : public testing::Test {
public:
    explicit OnNewThread(void (*life)()) : m_life(life) {}
    static void SetUpTestSuite() { Opened::SetUpTestSuite(); }
    static void TearDownTestSuite() { Opened::TearDownTestSuite(); }

private:
    struct Opened : Suite {
        using Suite::onNewThread;
        using Suite::SetUpTestSuite;
        using Suite::TearDownTestSuite;
    };
    void TestBody() override { Opened::onNewThread(m_life); }

    void (*m_life)();
};

} // namespace quillet::kit

/// Like TEST_F; the fixture is made, used and destroyed where the suite's onNewThread runs it.
#define TEST_ON_NEW_THREAD(Suite, title)                                                                     \
    class Suite##_##title : public Suite {                                                                   \
        void TestBody() override;                                                                            \
                                                                                                             \
    public:                                                                                                  \
        static void live()                                                                                   \
        {                                                                                                    \
            Suite##_##title test;                                                                            \
            test.SetUp();                                                                                    \
            if (!HasFatalFailure())                                                                          \
                test.TestBody();                                                                             \
            test.TearDown();                                                                                 \
        }                                                                                                    \
    };                                                                                                       \
    [[maybe_unused]] testing::TestInfo* const k##Suite##_##title = testing::RegisterTest(                    \
        #Suite, #title, nullptr, nullptr, __FILE__, __LINE__, []() -> quillet::kit::OnNewThread<Suite>* {    \
            return new quillet::kit::OnNewThread<Suite>(&Suite##_##title::live);                             \
        });                                                                                                  \
    void Suite##_##title::TestBody()

// A class that the test framework wants for starting threads. Its own takes the language's condition
// variables, which the library of GCC 12 does not have with Windows' own threads. Included before every file
// of the framework and the tests.
#pragma once

#ifdef __cplusplus

#include <windows.h>

namespace testing {
namespace internal {

class Notification {
public:
    Notification() : m_event(::CreateEventW(nullptr, TRUE, FALSE, nullptr)) {}
    ~Notification() { ::CloseHandle(m_event); }
    Notification(Notification const&) = delete;
    Notification& operator=(Notification const&) = delete;

    void Notify() { ::SetEvent(m_event); }
    void WaitForNotification() { ::WaitForSingleObject(m_event, INFINITE); }

private:
    HANDLE m_event;
};

} // namespace internal
} // namespace testing

#endif

// User-interface threads of a test's own: what the component keeps per thread begins afresh there.
#include "kit/UiThread.h"

#include "kit/Pump.h"

#include <ole2.h>

namespace quillet::kit {

namespace {

constexpr UINT kRunOnThread = WM_APP + 1; // to the thread: call wParam, then set the event of lParam

/// Waits for something that another thread signals; messages to our own windows are handled meanwhile, for
/// the other may need their answers.
void await(HANDLE signalled)
{
    while (::MsgWaitForMultipleObjects(1, &signalled, FALSE, INFINITE, QS_ALLINPUT) != WAIT_OBJECT_0)
        pumpPending();
}

} // namespace

UiThread::UiThread()
    : m_ready(::CreateEventW(nullptr, FALSE, FALSE, nullptr)),
      m_thread(::CreateThread(nullptr, 0, begin, this, 0, nullptr))
{
    await(m_ready);
}

UiThread::~UiThread()
{
    ::PostThreadMessageW(m_id, WM_QUIT, 0, 0);
    await(m_ready);
    ::WaitForSingleObject(m_thread, INFINITE);
    ::CloseHandle(m_thread);
    ::CloseHandle(m_ready);
}

void UiThread::run(std::function<void()> const& body)
{
    HANDLE const done = ::CreateEventW(nullptr, FALSE, FALSE, nullptr);
    ::PostThreadMessageW(m_id, kRunOnThread, reinterpret_cast<WPARAM>(&body), reinterpret_cast<LPARAM>(done));
    await(done);
    ::CloseHandle(done);
}

DWORD WINAPI UiThread::begin(void* self)
{
    static_cast<UiThread*>(self)->live();
    return 0;
}

void UiThread::live()
{
    ::OleInitialize(nullptr);
    MSG message;
    ::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE); // from here on messages can be posted
    m_id = ::GetCurrentThreadId();
    ::SetEvent(m_ready);
    while (::GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (!message.hwnd && message.message == kRunOnThread) {
            (*reinterpret_cast<std::function<void()> const*>(message.wParam))();
            ::SetEvent(reinterpret_cast<HANDLE>(message.lParam));
            continue;
        }
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
    ::OleUninitialize();
    ::SetEvent(m_ready);
}

void onNewThread(std::function<void()> const& body)
{
    UiThread thread;
    thread.run(body);
}

} // namespace quillet::kit

// The messages of a thread's windows: seen as they pass, or one kind kept by a host that subclassed last.
#include "kit/MessageWatch.h"

#include <utility>

namespace quillet::kit {

namespace {

// A hook procedure is given nothing to find its watch by.
thread_local MessageWatch::Seen t_posted;
thread_local MessageWatch::Seen t_sent;

void tell(MessageWatch::Seen const& seen, MSG const& message)
{
    if (auto const call = seen)
        call(message);
}

} // namespace

MessageWatch::MessageWatch(Passing kind, Seen seen)
    : m_seen(kind == Passing::Posted ? t_posted : t_sent),
      m_hook(::SetWindowsHookExW(kind == Passing::Posted ? WH_GETMESSAGE : WH_CALLWNDPROC,
                                 kind == Passing::Posted ? posted : sent, nullptr, ::GetCurrentThreadId()))
{
    m_seen = std::move(seen);
}

MessageWatch::~MessageWatch()
{
    ::UnhookWindowsHookEx(m_hook);
    m_seen = nullptr;
}

LRESULT CALLBACK MessageWatch::posted(int code, WPARAM wParam, LPARAM lParam)
{
    if (code == HC_ACTION && wParam == PM_REMOVE)
        tell(t_posted, *reinterpret_cast<MSG const*>(lParam));
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

LRESULT CALLBACK MessageWatch::sent(int code, WPARAM wParam, LPARAM lParam)
{
    if (code == HC_ACTION) {
        auto const& call = *reinterpret_cast<CWPSTRUCT const*>(lParam);
        MSG message{};
        message.hwnd = call.hwnd;
        message.message = call.message;
        message.wParam = call.wParam;
        message.lParam = call.lParam;
        tell(t_sent, message);
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

bool isOfClass(HWND window, wchar_t const* className)
{
    wchar_t name[64];
    return ::GetClassNameW(window, name, 64) && ::lstrcmpiW(name, className) == 0;
}

namespace {

thread_local SwallowedMessage const* t_present = nullptr; // a window procedure is given nothing to find it by

} // namespace

SwallowedMessage::SwallowedMessage(HWND window, UINT message)
    : m_window(window), m_message(message),
      m_before(reinterpret_cast<WNDPROC>(::GetWindowLongPtrA(window, GWLP_WNDPROC)))
{
    t_present = this;
    ::SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&procedure));
}

SwallowedMessage::~SwallowedMessage()
{
    ::SetWindowLongPtrA(m_window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_before));
    t_present = nullptr;
}

LRESULT CALLBACK SwallowedMessage::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    return message == t_present->m_message
               ? 0
               : ::CallWindowProcA(t_present->m_before, window, message, wParam, lParam);
}

} // namespace quillet::kit

// A host that subclassed a control's window last and keeps one kind of message to itself.
#include "kit/SwallowedMessage.h"

namespace quillet::kit {

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

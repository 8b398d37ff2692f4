// A window's procedure as it is before the component subclasses the window: it keeps what reaches it.
#include "PreviousProcedure.h"

#include <algorithm>

namespace quillet::winsvc {

namespace {

thread_local PreviousProcedure* t_present = nullptr; // a window procedure is given nothing to find it by

} // namespace

PreviousProcedure::PreviousProcedure(HWND window)
    : m_window(window), m_own(reinterpret_cast<WNDPROC>(::GetWindowLongPtrA(window, GWLP_WNDPROC)))
{
    t_present = this;
    ::SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&procedure));
}

PreviousProcedure::~PreviousProcedure()
{
    if (::IsWindow(m_window))
        ::SetWindowLongPtrA(m_window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_own));
    t_present = nullptr;
}

int PreviousProcedure::count(UINT message) const
{
    return static_cast<int>(std::ranges::count(seen, message, &MSG::message));
}

LRESULT CALLBACK PreviousProcedure::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    PreviousProcedure* const self = t_present;
    if (!self)
        return ::DefWindowProcA(window, message, wParam, lParam);
    MSG const noted{window, message, wParam, lParam, 0, {}};
    self->seen.push_back(noted);
    if (auto const run = self->action)
        run(noted);
    return message >= WM_APP ? self->answer : ::CallWindowProcA(self->m_own, window, message, wParam, lParam);
}

} // namespace quillet::winsvc

// Where the mouse cursor is.
#include "surface/window/Cursor.h"

#include "surface/faces/Events.h"
#include "surface/window/ThreadState.h"

#include <utility>

namespace quillet {

namespace {

POINT cursorNow() noexcept
{
    POINT cursor = {};
    ::GetCursorPos(&cursor);
    return cursor;
}

} // namespace

CursorMoment::CursorMoment() : m_outer(std::exchange(threadState().cursorMoment, this)) {}

CursorMoment::CursorMoment(Events const& raised)
    : m_windowsStay(true),
      m_outer(std::exchange(threadState().cursorMoment, raised.areHeard() ? nullptr : this))
{}

CursorMoment::~CursorMoment() { threadState().cursorMoment = m_outer; }

POINT CursorMoment::cursor() noexcept
{
    DWORD const messagePlace = ::GetMessagePos();
    if (!m_asked || messagePlace != m_messagePlace) {
        m_cursor = cursorNow();
        m_messagePlace = messagePlace;
        m_asked = true;
        m_window.reset();
    }
    return m_cursor;
}

HWND CursorMoment::window() noexcept
{
    POINT const at = cursor();
    if (!m_window || !m_windowsStay)
        m_window = ::WindowFromPoint(at);
    return *m_window;
}

bool isUnderCursor(HWND window)
{
    CursorMoment* const moment = threadState().cursorMoment;
    POINT const cursor = moment ? moment->cursor() : cursorNow();
    RECT place = {};
    // Comparing places comes first: it spares most windows the search, which costs as much as a fill.
    if (!::GetWindowRect(window, &place) || !::PtInRect(&place, cursor))
        return false;
    return (moment ? moment->window() : ::WindowFromPoint(cursor)) == window;
}

void awaitLeaving(HWND window)
{
    if (!isUnderCursor(window)) { // some systems say nothing then
        ::PostMessageA(window, WM_MOUSELEAVE, 0, 0);
        return;
    }
    TRACKMOUSEEVENT request = {sizeof(request), TME_LEAVE, window, 0};
    ::TrackMouseEvent(&request);
}

} // namespace quillet

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
    : m_outer(std::exchange(threadState().cursorMoment, raised.areHeard() ? nullptr : this))
{}

CursorMoment::~CursorMoment() { threadState().cursorMoment = m_outer; }

POINT CursorMoment::cursor() noexcept
{
    DWORD const messagePlace = ::GetMessagePos();
    if (!m_asked || messagePlace != m_messagePlace) {
        m_cursor = cursorNow();
        m_messagePlace = messagePlace;
        m_asked = true;
    }
    return m_cursor;
}

bool isUnderCursor(HWND window)
{
    CursorMoment* const moment = threadState().cursorMoment;
    POINT const cursor = moment ? moment->cursor() : cursorNow();
    RECT place = {};
    // Comparing places comes first: it spares most windows the search, which costs as much as a fill.
    return ::GetWindowRect(window, &place) && ::PtInRect(&place, cursor) &&
           ::WindowFromPoint(cursor) == window;
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

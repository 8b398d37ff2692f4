// Where the mouse cursor is.
#pragma once

#include <windows.h>

namespace quillet {

/// Whether the window, and no other window over it, is what lies under the cursor.
bool isUnderCursor(HWND window);

/// Has Windows send the window WM_MOUSELEAVE as soon as the cursor is not over it any more; where it is not
/// now, at once.
void awaitLeaving(HWND window);

/// While one lives, the cursor is where it was at its beginning, as far as no message has told its thread of
/// another place. Controls that are painted one after another need to know no more, and asking each time can
/// cost as much as half a paint, as some systems have to ask their display.
class CursorMoment {
public:
    CursorMoment();
    ~CursorMoment();
    CursorMoment(CursorMoment const&) = delete;
    CursorMoment& operator=(CursorMoment const&) = delete;

    POINT cursor() const noexcept;

private:
    POINT m_cursor;
    DWORD m_messagePlace;
    CursorMoment const* m_outer;
};

} // namespace quillet

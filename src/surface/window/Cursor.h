// Where the mouse cursor is.
#pragma once

#include <windows.h>

namespace quillet {

/// Whether the window, and no other window over it, is what lies under the cursor.
bool isUnderCursor(HWND window);

/// Has WM_MOUSELEAVE sent to the window as soon as the cursor is not over it; at once where it is not now.
void awaitLeaving(HWND window);

/// While one lives, the cursor counts as being where it was at the beginning, until a message tells the
/// thread of another place. For controls that are painted one after another: on systems that have to ask
/// their display, asking each time costs as much as half a paint.
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

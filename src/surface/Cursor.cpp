// Where the mouse cursor is.
#include "surface/Cursor.h"

namespace quillet {

bool isUnderCursor(HWND window) noexcept
{
    POINT cursor = {};
    RECT place = {};
    ::GetCursorPos(&cursor);
    // The place rules most windows out without a search, which costs as much as a fill.
    return ::GetWindowRect(window, &place) && ::PtInRect(&place, cursor) &&
           ::WindowFromPoint(cursor) == window;
}

} // namespace quillet

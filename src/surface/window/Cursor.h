// Where the mouse cursor is.
#pragma once

#include <windows.h>

#include <optional>

namespace quillet {

class Events;

/// Whether the window, and no other window over it, is what lies under the cursor.
bool isUnderCursor(HWND window);

/// Has WM_MOUSELEAVE sent to the window as soon as the cursor is not over it; at once where it is not now.
void awaitLeaving(HWND window);

/// While one lives, the cursor counts as being where it was when first asked for, until a message tells the
/// thread of another place; within one message, so does the window there. For controls that are painted one
/// after another, and for a message that asks more than once: on systems that have to ask their display,
/// asking each time costs as much as half a paint.
class CursorMoment {
public:
    /// For a walk over a form's controls.
    CursorMoment();
    /// For one mouse message of a control that raises these events. Whoever listens to them may move the
    /// cursor, and no message tells of that at once: then there is no such moment.
    explicit CursorMoment(Events const& raised);
    ~CursorMoment();
    CursorMoment(CursorMoment const&) = delete;
    CursorMoment& operator=(CursorMoment const&) = delete;

    POINT cursor() noexcept;
    /// The window there. During a walk whoever listens to a control that was painted may change which it is.
    HWND window() noexcept;

private:
    bool m_windowsStay = false;
    bool m_asked = false;
    POINT m_cursor = {};
    DWORD m_messagePlace = 0;
    std::optional<HWND> m_window;
    CursorMoment* m_outer;
};

} // namespace quillet

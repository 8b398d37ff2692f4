// The window beside a form that shows what its controls raise.
#pragma once

#include "gallery/host/Form.h"

#include <windows.h>

#include <string>

namespace quillet::gallery {

/// A list of events, the newest at its end and in sight. To stay readable it leaves Paint out, and of
/// MouseMoves in a row it shows the newest.
class EventPane {
public:
    /// Opens hidden, where it covers nothing of the form if the screen has room for that.
    explicit EventPane(HWND form);

    void show() noexcept;
    void add(FormEvent const& event);

    /// Borrowed: it goes with the form's window, or when the user closes it.
    HWND window() const noexcept { return m_window; }

private:
    HWND m_window;
    std::wstring m_last; ///< the name of the event that the last line shows
};

} // namespace quillet::gallery

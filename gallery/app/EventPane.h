// The list beside a form that shows what its controls raise.
#pragma once

#include "gallery/host/Form.h"

#include <windows.h>

#include <string>

namespace quillet::gallery {

/// A list of events, the newest at its end and in sight. To stay readable it leaves Paint out, and of
/// MouseMoves in a row it shows the newest.
class EventPane {
public:
    /// Its windows go with the parent's.
    explicit EventPane(HWND parent);

    void moveTo(RECT const& place, int titleHeight) noexcept;
    /// Empties the list. The hint stands above it instead of its title.
    void begin(std::wstring const& hint = {});
    void add(FormEvent const& event);

    /// Borrowed.
    HWND list() const noexcept { return m_list; }

private:
    HWND m_title;
    HWND m_list;
    std::wstring m_last; ///< the name of the event that the last line shows
};

} // namespace quillet::gallery

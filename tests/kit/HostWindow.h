// A visible window of a plain colour, for controls to live in.
#pragma once

#include "base/Handles.h"

#include <windows.h>

namespace quillet::kit {

/// A colour that nothing else in the tests has.
constexpr COLORREF kHostColor = RGB(255, 0, 254);

/// A top-level window without a frame, so that its client area is the whole of it.
class HostWindow {
public:
    HostWindow(int left, int top, int width, int height);
    HWND handle() const noexcept { return m_window.get(); }

private:
    UniqueWindow m_window;
};

/// A child window of the system's edit class: something else that can have the focus.
UniqueWindow newEditBox(HWND parent, RECT const& place);

} // namespace quillet::kit

// Windows for controls to live in: a visible one of a plain colour, and the system's own control host.
#pragma once

#include "base/ComPtr.h"
#include "base/Handles.h"

#include <windows.h>

#include <unknwn.h>

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

/// A child window that hosts one control in its client area. It has no ambient properties, no container and
/// no extender, and closes its control when it is destroyed.
class AtlHost {
public:
    AtlHost(HWND parent, RECT const& place);

    HWND window() const noexcept { return m_window.get(); }
    /// Puts a made and loaded control in: site, extent and activation are the host's business.
    HRESULT attach(IUnknown* control);
    void destroy();

private:
    ComPtr<IUnknown> m_container; // goes after its window
    UniqueWindow m_window;
};

} // namespace quillet::kit

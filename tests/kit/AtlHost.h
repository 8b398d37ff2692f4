// The system's own control host: a window of atl.dll.
#pragma once

#include "base/ComPtr.h"
#include "base/Handles.h"

#include <windows.h>

#include <unknwn.h>

namespace quillet::kit {

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

// A control's side towards screen readers and test tools: its accessible object, and notice of changes.
#pragma once

#include "base/ComPtr.h"
#include "surface/faces/AccessibleObject.h"

#include <windows.h>

#include <optional>

namespace quillet {

class Surface;

class Accessibility {
public:
    explicit Accessibility(Surface& surface) noexcept : m_surface(surface) {}
    ~Accessibility() { disconnect(); }
    Accessibility(Accessibility const&) = delete;
    Accessibility& operator=(Accessibility const&) = delete;

    /// The answer to a window's WM_GETOBJECT that asks for the control; nothing for those that the system
    /// answers.
    std::optional<LRESULT> answer(HWND window, WPARAM request, LPARAM what);

    /// Tells those who listen to the desktop's events.
    void propertyChanged(DISPID property) const noexcept;
    void stateChanged() const noexcept;

    void disconnect() noexcept;

private:
    void tell(DWORD event) const noexcept;

    Surface& m_surface;
    ComPtr<AccessibleObject> m_object; ///< made at the first question
};

} // namespace quillet

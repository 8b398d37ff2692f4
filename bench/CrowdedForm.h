// A visible window with as many flat command buttons as are asked for, or of the system's.
#pragma once

#include "base/Handles.h"
#include "bench/BarePainter.h"
#include "bench/Container.h"
#include "bench/Places.h"
#include "kit/HostWindow.h"
#include "kit/Library.h"

#include <windows.h>

#include <memory>
#include <vector>

namespace quillet::bench {

class CrowdedForm {
public:
    /// For so many buttons at most, of which it has some at first.
    CrowdedForm(kit::Library const& library, Places const& places, int buttons);

    HWND window() const noexcept { return m_window.handle(); }
    /// Creates, loads and activates so many more.
    void add(int buttons);
    void clear() { m_buttons.clear(); }

    /// Lets the buttons find each other, as they do on a form.
    void joinAsSiblings();
    HWND windowOf(int index) const;
    /// Paints the same picture with bare GDI calls.
    BarePainter barePainterOf(int index) const;

private:
    Places m_places;
    kit::HostWindow m_window{Places::kOrigin, Places::kOrigin, Places::kForm.cx, Places::kForm.cy};
    Siblings m_siblings;
    Frame m_frame{m_window.handle(), &m_siblings};
    SavedButton m_saved;
    ComPtr<IClassFactory> m_factory;
    std::vector<std::unique_ptr<Hosted>> m_buttons;
};

/// Buttons of the system's own class in a form: the floor of having many.
class SystemButtons {
public:
    SystemButtons(HWND form, Places const& places, int count);

    /// Creates so many more, visible, with caption and font, where the form's own buttons would be.
    void add(int count);
    void clear() { m_windows.clear(); }

private:
    HWND m_form;
    Places m_places;
    std::vector<UniqueWindow> m_windows;
};

} // namespace quillet::bench

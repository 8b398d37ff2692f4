// The window of a property page: a child dialog whose controls are placed in dialog units.
#pragma once

#include "base/Handles.h"

#include <windows.h>

namespace quillet {

/// A rectangle in dialog units, which follow the size of the dialog's font.
struct Units {
    int x;
    int y;
    int width;
    int height;
};

/// Who hears of what happens in the window.
class PageCommands {
public:
    virtual void onCommand(WORD control, WORD notification) = 0;
    virtual void onDraw(DRAWITEMSTRUCT const& item) = 0;

protected:
    ~PageCommands() = default;
};

class PageWindow {
public:
    /// The size that the guidelines give a page.
    static constexpr Units kPage{0, 0, 250, 110};

    /// Throws when Windows refuses the window. It is hidden at first.
    PageWindow(HWND parent, PageCommands& commands);
    PageWindow(PageWindow const&) = delete;
    PageWindow& operator=(PageWindow const&) = delete;

    HWND handle() const noexcept { return m_window.get(); }
    HWND control(WORD id) const noexcept { return ::GetDlgItem(handle(), id); }

    /// Makes a control of a window class in its place; it belongs to the window.
    HWND add(wchar_t const* windowClass, wchar_t const* text, DWORD style, WORD id, Units const& place);
    HWND addLabel(wchar_t const* text, Units const& place);

    /// Pixels of so many dialog units.
    RECT pixels(Units const& units) const noexcept;

private:
    static INT_PTR CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;

    UniqueWindow m_window;
};

} // namespace quillet

// A window's procedure as it is before the component subclasses the window: it keeps what reaches it.
#pragma once

#include <windows.h>

#include <functional>
#include <vector>

namespace quillet::winsvc {

/// Stands before a window's own procedure from the beginning. One at a time on a thread.
class PreviousProcedure {
public:
    explicit PreviousProcedure(HWND window);
    ~PreviousProcedure();
    PreviousProcedure(PreviousProcedure const&) = delete;
    PreviousProcedure& operator=(PreviousProcedure const&) = delete;

    std::vector<MSG> seen; ///< window and the four values; neither time nor point
    std::function<void(MSG const&)> action;
    /// What messages from WM_APP on are answered with; they go no further.
    LRESULT answer = 0;

    int count(UINT message) const;
    WNDPROC address() const noexcept { return &procedure; }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND m_window;
    WNDPROC m_own;
};

} // namespace quillet::winsvc

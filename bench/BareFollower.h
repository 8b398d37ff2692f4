// A window that does what following a mouse takes, with bare calls: the floor of a hover and of a press.
#pragma once

#include "base/Handles.h"
#include "bench/BarePainter.h"

#include <windows.h>

namespace quillet::bench {

/// How it paints itself in each look.
struct FollowedLooks {
    BareLook normal;
    BareLook hot;
    BareLook pressed;
};

/// A flat picture of the caption that is hot while it has the capture, which it holds while the cursor is
/// over it; every mouse message is relayed to a tooltip window.
class BareFollower {
public:
    BareFollower(HWND form, RECT const& place, HFONT font, FollowedLooks const& looks);
    BareFollower(BareFollower const&) = delete;
    BareFollower& operator=(BareFollower const&) = delete;

    HWND window() const noexcept { return m_window.get(); }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void handle(UINT message, WPARAM wParam, LPARAM lParam);
    bool isOver() const;

    UniqueWindow m_window;
    UniqueWindow m_toolTip;
    BarePainter m_painter;
    FollowedLooks m_looks;
};

} // namespace quillet::bench

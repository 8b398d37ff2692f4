// How a subclassed window's messages reach the control that its user-data slot names.
#pragma once

#include <windows.h>

#include <unknwn.h>

namespace quillet {

inline constexpr IID kWindowMessagesInterface = {
    0x6E0B5A0C, 0x3A54, 0x4F0D, {0x9B, 0x1F, 0x52, 0xC7, 0x88, 0x31, 0xD4, 0x6A}};

/// An interface of the component's own, which it does not publish. A control answers for it also inside an
/// aggregate.
struct WindowMessages : IUnknown {
    /// Handles the message and passes it on; answers what the window's previous procedure answered.
    virtual LRESULT handleMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept = 0;
};

} // namespace quillet

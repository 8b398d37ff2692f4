// Windows that each belong to an object of the program, their owner.
#pragma once

#include "base/ComCall.h"

#include <windows.h>

namespace quillet::gallery {

/// The procedure of windows that are made with their owner as the creation's parameter: hands everything on
/// to the owner's handle.
template <class Owner>
LRESULT CALLBACK ownWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    if (message == WM_NCCREATE) {
        auto const* const creation = reinterpret_cast<CREATESTRUCTW const*>(lParam);
        ::SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(creation->lpCreateParams));
    }
    auto* const owner = reinterpret_cast<Owner*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
    // The owner's member is set when the creation returns, and is empty again while the window goes.
    if (!owner || owner->window() != window)
        return ::DefWindowProcW(window, message, wParam, lParam);
    return orFallback(LRESULT{0}, [&] { return owner->handle(message, wParam, lParam); });
}

/// Registers their class, with the program's icon, where it is not known yet.
template <class Owner> void registerOwnWindow(wchar_t const* name, HBRUSH background = nullptr) noexcept
{
    WNDCLASSEXW row{};
    row.cbSize = sizeof row;
    row.lpfnWndProc = ownWindowProc<Owner>;
    row.hInstance = ::GetModuleHandleW(nullptr);
    row.hCursor = ::LoadCursorA(nullptr, IDC_ARROW);
    row.hIcon = ::LoadIconW(row.hInstance, MAKEINTRESOURCEW(1)); // the first is the program's
    row.hbrBackground = background;
    row.lpszClassName = name;
    ::RegisterClassExW(&row);
}

} // namespace quillet::gallery

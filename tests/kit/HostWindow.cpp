// A visible window of a plain colour, for controls to live in.
#include "kit/HostWindow.h"

namespace quillet::kit {

namespace {

constexpr wchar_t kClassName[] = L"QuilletTestHost";

void eraseBackground(HWND window, HDC dc)
{
    RECT client;
    ::GetClientRect(window, &client);
    UniqueBrush const brush(::CreateSolidBrush(kHostColor));
    ::FillRect(dc, &client, brush.get());
}

LRESULT CALLBACK hostProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != WM_ERASEBKGND)
        return ::DefWindowProcW(window, message, wParam, lParam);
    eraseBackground(window, reinterpret_cast<HDC>(wParam));
    return 1;
}

HWND newHostWindow(int left, int top, int width, int height)
{
    HINSTANCE const instance = ::GetModuleHandleW(nullptr);
    WNDCLASSW hostClass{};
    hostClass.lpfnWndProc = hostProcedure;
    hostClass.hInstance = instance;
    hostClass.hCursor = ::LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
    hostClass.lpszClassName = kClassName;
    ::RegisterClassW(&hostClass); // fails from the second time on, and need not succeed then
    // Shown without activation: a test says itself what has the focus.
    HWND const window = ::CreateWindowExW(WS_EX_TOOLWINDOW, kClassName, L"", WS_POPUP | WS_CLIPCHILDREN, left,
                                          top, width, height, nullptr, nullptr, instance, nullptr);
    ::ShowWindow(window, SW_SHOWNOACTIVATE);
    ::UpdateWindow(window);
    return window;
}

} // namespace

HostWindow::HostWindow(int left, int top, int width, int height)
    : m_window(newHostWindow(left, top, width, height))
{}

UniqueWindow newEditBox(HWND parent, RECT const& place)
{
    return UniqueWindow(::CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, place.left, place.top,
                                          place.right - place.left, place.bottom - place.top, parent, nullptr,
                                          nullptr, nullptr));
}

} // namespace quillet::kit

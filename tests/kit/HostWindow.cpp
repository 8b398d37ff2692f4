// Windows for controls to live in: a visible one of a plain colour, and the system's own control host.
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

namespace {

using WinInit = BOOL WINAPI();
using AttachControl = HRESULT WINAPI(IUnknown*, HWND, IUnknown**);

/// Loaded for as long as the program runs: its window class stays registered.
template <class Function> Function* entry(char const* name)
{
    HMODULE const module = ::LoadLibraryW(L"atl.dll");
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(::GetProcAddress(module, name)));
}

HWND newAtlWindow(HWND parent, RECT const& place)
{
    if (auto* const init = entry<WinInit>("AtlAxWinInit"))
        init();
    return ::CreateWindowExW(0, L"AtlAxWin", L"", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, place.left,
                             place.top, place.right - place.left, place.bottom - place.top, parent, nullptr,
                             nullptr, nullptr);
}

} // namespace

AtlHost::AtlHost(HWND parent, RECT const& place) : m_window(newAtlWindow(parent, place)) {}

HRESULT AtlHost::attach(IUnknown* control)
{
    auto* const attachControl = entry<AttachControl>("AtlAxAttachControl");
    // A caller that does not want the container gets no hosting at all from some versions.
    return attachControl ? attachControl(control, window(), m_container.put()) : E_NOTIMPL;
}

void AtlHost::destroy()
{
    m_window.reset();
    m_container.reset();
}

} // namespace quillet::kit

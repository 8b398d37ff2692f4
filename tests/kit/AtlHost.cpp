// The system's own control host: a window of atl.dll.
#include "kit/AtlHost.h"

namespace quillet::kit {

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

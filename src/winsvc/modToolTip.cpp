// Window services of every control: its window's messages seen first, and the thread's shared tooltip.
// Results of window calls are not checked: a control without tooltips is still a control.
#include "winsvc/modToolTip.h"

#include "base/Checked.h"
#include "base/ComCall.h"
#include "base/Module.h"
#include "surface/Surface.h"
#include "surface/window/ThreadState.h"

#include <commctrl.h>

namespace quillet {

namespace {

/// The messages that the tooltip window has to see. Double clicks are not among them.
bool isRelayed(UINT message) noexcept
{
    switch (message) {
    case WM_MOUSEMOVE:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP:
    case WM_MBUTTONDOWN:
    case WM_MBUTTONUP:
        return true;
    default:
        return false;
    }
}

void relay(HWND toolTip, HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    MSG relayed = {};
    relayed.hwnd = window;
    relayed.message = message;
    relayed.wParam = wParam;
    relayed.lParam = lParam;
    ::SendMessageA(toolTip, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&relayed));
}

HWND newToolTipWindow() noexcept
{
    ::InitCommonControls();
    HWND const made =
        ::CreateWindowExA(WS_EX_TOPMOST, TOOLTIPS_CLASSA, nullptr, 0, CW_USEDEFAULT, CW_USEDEFAULT,
                          CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr, moduleInstance(), nullptr);
    ::SendMessageA(made, TTM_ACTIVATE, TRUE, 0);
    return made;
}

std::string ansiOf(std::wstring_view text)
{
    int const length = static_cast<int>(text.size());
    std::string result(static_cast<size_t>(::WideCharToMultiByte(CP_ACP, 0, text.data(), length, nullptr, 0,
                                                                 nullptr, nullptr)),
                       '\0');
    ::WideCharToMultiByte(CP_ACP, 0, text.data(), length, result.data(), static_cast<int>(result.size()),
                          nullptr, nullptr);
    return result;
}

/// What names a window as a tool.
TTTOOLINFOA toolOf(HWND window) noexcept
{
    TTTOOLINFOA tool = {};
    tool.cbSize = TTTOOLINFOA_V1_SIZE;
    tool.uFlags = TTF_IDISHWND;
    tool.hwnd = window;
    tool.uId = reinterpret_cast<UINT_PTR>(window);
    return tool;
}

/// The control of a subclassed window; empty where the slot holds none.
ComPtr<WindowMessages> ControlFromHwnd(HWND window) noexcept
{
    return query<WindowMessages>(reinterpret_cast<IDispatch*>(::GetWindowLongPtrA(window, GWLP_USERDATA)),
                                 kWindowMessagesInterface);
}

} // namespace

LRESULT CALLBACK SubclassWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    auto const control = ControlFromHwnd(window);
    return control ? control->handleMessage(window, message, wParam, lParam) : 0;
}

void ToolTipUser::CreateToolTip(HWND window)
{
    ThreadState& state = threadState();
    if (!m_counted) {
        state.toolTipUsers = checkedAdd(state.toolTipUsers, 1);
        m_counted = true;
    }
    if (!m_surface.userMode())
        return;
    if (!state.toolTipCreated) {
        state.toolTipCreated = true; // for good: a window that is gone stays gone on this thread
        state.toolTip = newToolTipWindow();
    }
    m_running = true;
    if (window)
        windowMade(window);
}

void ToolTipUser::windowMade(HWND window) noexcept
{
    if (!m_running)
        return;
    removeTool(threadState().toolTip);
    Subclass(window);
    AddTool(threadState().toolTip, window);
}

void ToolTipUser::Terminate()
{
    ThreadState& state = threadState();
    if (m_counted)
        state.toolTipUsers = checkedSubtract(state.toolTipUsers, 1);
    Unsubclass();
    if (m_counted && state.toolTipCreated && state.toolTipUsers == 0)
        ::DestroyWindow(state.toolTip);
    else
        removeTool(state.toolTip);
    m_counted = m_running = false;
}

void ToolTipUser::AddTool(HWND toolTip, HWND window) noexcept
{
    TTTOOLINFOA tool = toolOf(window);
    tool.hinst = moduleInstance();
    tool.lpszText = LPSTR_TEXTCALLBACKA; // asked for at each showing: the extender's text may change
    ::SendMessageA(toolTip, TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
    ::SendMessageA(toolTip, TTM_ACTIVATE, TRUE, reinterpret_cast<LPARAM>(window));
}

/// Forms that make and give up controls as they run would otherwise fill the tooltip window with tools.
void ToolTipUser::removeTool(HWND toolTip) const noexcept
{
    if (!m_subclassed)
        return;
    TTTOOLINFOA tool = toolOf(m_subclassed);
    ::SendMessageA(toolTip, TTM_DELTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
}

void ToolTipUser::Subclass(HWND window) noexcept
{
    Unsubclass();
    m_previous = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&SubclassWndProc)));
    if (!m_previous)
        return;
    m_subclassed = window;
    // Programs copy it into object variables. Uncounted: the window never keeps its control alive.
    ::SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(m_surface.dual()));
}

void ToolTipUser::Unsubclass() noexcept
{
    if (!m_previous)
        return;
    ::SetWindowLongPtrA(m_subclassed, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_previous));
    m_previous = nullptr;
}

LRESULT ToolTipUser::handleMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    WNDPROC const previous = m_previous; // handling a message may end the subclassing
    ignoringErrors([&] {
        if (message == WM_SETFOCUS || message == WM_KILLFOCUS)
            m_surface.onFocusMessage();
        else if (isRelayed(message))
            relay(threadState().toolTip, window, message, wParam, lParam);
        else if (message == WM_NOTIFY)
            answerText(lParam);
    });
    if (previous)
        return ::CallWindowProcA(previous, window, message, wParam, lParam);
    // Somebody who subclassed the window later still hands us its messages.
    auto const own = reinterpret_cast<WNDPROC>(::GetClassLongPtrA(window, GCLP_WNDPROC));
    return own ? ::CallWindowProcA(own, window, message, wParam, lParam) : 0;
}

LONG ToolTipUser::WindowProc(LONG window, LONG message, LONG wParam, LONG lParam) noexcept
{
    return static_cast<LONG>(handleMessage(static_cast<HWND>(LongToHandle(window)),
                                           static_cast<UINT>(message), static_cast<WPARAM>(wParam),
                                           LPARAM{lParam}));
}

void ToolTipUser::answerText(LPARAM request) noexcept
{
    ignoringErrors([&] {
        auto* const asked = reinterpret_cast<NMTTDISPINFOA*>(request);
        if (!asked || asked->hdr.code != TTN_GETDISPINFOA || asked->hdr.hwndFrom != threadState().toolTip)
            return;
        Variant const text = m_surface.container().requiredExtenderProperty(L"ToolTipText");
        m_ansiText = ansiOf(text.toString().view());
        asked->lpszText = m_ansiText.data();
    });
}

} // namespace quillet

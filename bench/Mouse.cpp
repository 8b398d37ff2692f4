// What the mouse does to a flat command button, from the message that says so until the new looks are
// painted.
#include "base/Handles.h"
#include "bench/BarePainter.h"
#include "bench/Rounds.h"
#include "bench/ShownButton.h"
#include "kit/HostWindow.h"
#include "kit/Input.h"

#include <commctrl.h>
#include <windows.h>

namespace quillet::bench {

namespace {

/// How it paints itself in each look.
struct FollowedLooks {
    BareLook normal;
    BareLook hot;
    BareLook pressed;
};

/// A window that does what following a mouse takes, with bare calls: the floor of a hover and of a press. It
/// is a flat picture of the caption that is hot while it has the capture, which it holds while the cursor is
/// over it; every mouse message is relayed to a tooltip window. It asks where the cursor is once in a move
/// and not at a press, and what lies there only inside its own rectangle, which it knows.
class BareFollower {
public:
    BareFollower(HWND form, RECT const& place, HFONT font, FollowedLooks const& looks);
    BareFollower(BareFollower const&) = delete;
    BareFollower& operator=(BareFollower const&) = delete;

    HWND window() const noexcept { return m_window.get(); }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void handle(UINT message, WPARAM wParam, LPARAM lParam);
    void follow();
    bool isOver() const;

    UniqueWindow m_window;
    UniqueWindow m_toolTip;
    BarePainter m_painter;
    FollowedLooks m_looks;
    RECT m_onScreen = {};
};

UniqueWindow newWindow(HWND form, RECT const& place)
{
    return UniqueWindow(::CreateWindowExW(0, L"STATIC", nullptr, WS_CHILD | WS_VISIBLE | SS_NOTIFY,
                                          place.left, place.top, place.right - place.left,
                                          place.bottom - place.top, form, nullptr, nullptr, nullptr));
}

UniqueWindow newToolTip(HWND tool)
{
    ::InitCommonControls();
    UniqueWindow toolTip(::CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, 0, CW_USEDEFAULT,
                                           CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr,
                                           nullptr, nullptr));
    TTTOOLINFOW info{};
    info.cbSize = TTTOOLINFOW_V1_SIZE;
    info.uFlags = TTF_IDISHWND;
    info.hwnd = tool;
    info.uId = reinterpret_cast<UINT_PTR>(tool);
    info.lpszText = LPSTR_TEXTCALLBACKW;
    ::SendMessageW(toolTip.get(), TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&info));
    return toolTip;
}

BareFollower::BareFollower(HWND form, RECT const& place, HFONT font, FollowedLooks const& looks)
    : m_window(newWindow(form, place)), m_toolTip(newToolTip(m_window.get())),
      m_painter(m_window.get(), {place.right - place.left, place.bottom - place.top}, font, "Save changes"),
      m_looks(looks)
{
    ::GetWindowRect(m_window.get(), &m_onScreen);
    ::SetWindowLongPtrW(m_window.get(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    ::SetWindowLongPtrW(m_window.get(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&procedure));
}

LRESULT BareFollower::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto* const self = reinterpret_cast<BareFollower*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_MOUSEMOVE || message == WM_LBUTTONDOWN || message == WM_LBUTTONUP) {
        self->handle(message, wParam, lParam);
        return 0;
    }
    return ::DefWindowProcW(window, message, wParam, lParam);
}

void BareFollower::handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    MSG relayed{};
    relayed.hwnd = window();
    relayed.message = message;
    relayed.wParam = wParam;
    relayed.lParam = lParam;
    ::SendMessageW(m_toolTip.get(), TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&relayed));
    ::GetKeyState(VK_MENU); // for the event's arguments
    if (message == WM_LBUTTONDOWN)
        m_painter.paint(m_looks.pressed);
    else if (message == WM_LBUTTONUP)
        m_painter.paint(m_looks.hot);
    else
        follow();
}

void BareFollower::follow()
{
    bool const over = isOver();
    if (over == (::GetCapture() == window()))
        return;
    if (over)
        ::SetCapture(window());
    else
        ::ReleaseCapture();
    m_painter.paint(over ? m_looks.hot : m_looks.normal);
}

bool BareFollower::isOver() const
{
    POINT cursor{};
    ::GetCursorPos(&cursor);
    return ::PtInRect(&m_onScreen, cursor) && ::WindowFromPoint(cursor) == window();
}

constexpr POINT kOutside{ShownButton::kSize.cx + 30, ShownButton::kMiddle.y};

double sent(HWND window, UINT message, WPARAM keys)
{
    LPARAM const at = MAKELPARAM(ShownButton::kMiddle.x, ShownButton::kMiddle.y);
    return microsecondsOf([&] { ::SendMessageW(window, message, keys, at); });
}

/// Two paints, one after the other.
TimedBody pair(BarePainter const& bare, BareLook const& first, BareLook const& second)
{
    return [&bare, first, second] {
        return microsecondsOf([&] {
            bare.paint(first);
            bare.paint(second);
        });
    };
}

TimedBody enteredAndLeft(HWND window)
{
    return [window] {
        double const entered = movedTo(window, ShownButton::kMiddle);
        require(::GetCapture() == window, "the window does not see the mouse come");
        return entered + movedTo(window, kOutside);
    };
}

TimedBody pressedAndReleased(HWND window)
{
    return [window] { return sent(window, WM_LBUTTONDOWN, MK_LBUTTON) + sent(window, WM_LBUTTONUP, 0); };
}

} // namespace

Rows measureMouse(kit::Library const& library, Effort effort)
{
    ShownButton button(library);
    BarePainter const bare = button.barePainter();
    Rows rows;

    button.enter(Look::Normal);
    BareLook const normal = button.bareLook(Look::Normal);
    BareLook const hot = button.bareLook(Look::Hot);
    BareLook const pressed = button.bareLook(Look::Pressed);
    kit::HostWindow const other(300, 40, 200, 100);
    BareFollower const follower(other.handle(), ShownButton::kPlace, fontOf(button.control()),
                                {normal, hot, pressed});
    TimedBody const ours = enteredAndLeft(button.window());
    TimedBody const lean = enteredAndLeft(follower.window());
    rows.push_back(
        {"mouse enters and leaves, two paints", compareTimed(effort, ours, pair(bare, hot, normal))});
    rows.push_back({"mouse enters and leaves, a lean follower", compareTimed(effort, ours, lean)});
    {
        Listener listener(button.control());
        rows.push_back({"the same, somebody listens to ours", compareTimed(effort, ours, lean)});
    }

    button.enter(Look::Hot);
    require(kit::focus(button.window()), "the focus does not move");
    BareLook const hotFocused = button.bareLook(Look::Hot);
    BareLook const pressedFocused = button.bareLook(Look::Pressed);
    TimedBody const press = pressedAndReleased(button.window());
    rows.push_back({"press and release, two paints",
                    compareTimed(effort, press, pair(bare, pressedFocused, hotFocused))});
    rows.push_back({"press and release, a lean follower",
                    compareTimed(effort, press, pressedAndReleased(follower.window()))});
    button.leave(Look::Hot);
    return rows;
}

} // namespace quillet::bench

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
    bool const over = isOver();
    bool const captured = ::GetCapture() == window();
    if (message == WM_LBUTTONDOWN)
        m_painter.paint(m_looks.pressed);
    else if (message == WM_LBUTTONUP)
        m_painter.paint(m_looks.hot);
    else if (over && !captured) {
        ::SetCapture(window());
        m_painter.paint(m_looks.hot);
    } else if (!over && captured) {
        ::ReleaseCapture();
        m_painter.paint(m_looks.normal);
    }
}

bool BareFollower::isOver() const
{
    POINT cursor{};
    ::GetCursorPos(&cursor);
    return ::WindowFromPoint(cursor) == window();
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

} // namespace

Rows measureMouse(kit::Library const& library, Effort effort)
{
    int const rounds = effort == Effort::Full ? 1001 : 3;
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
    auto const enteredAndLeft = [](HWND window) {
        return [window] {
            double const entered = movedTo(window, ShownButton::kMiddle);
            require(::GetCapture() == window, "the window does not see the mouse come");
            return entered + movedTo(window, kOutside);
        };
    };
    rows.push_back(rowOf("mouse enters and leaves, both painted",
                         compareTimed(rounds, enteredAndLeft(button.window()), pair(bare, hot, normal)),
                         "–"));
    rows.push_back(
        rowOf("the same, the floor follows the mouse, too",
              compareTimed(rounds, enteredAndLeft(button.window()), enteredAndLeft(follower.window())), "–"));

    button.enter(Look::Hot);
    require(kit::focus(button.window()), "the focus does not move");
    BareLook const hotFocused = button.bareLook(Look::Hot);
    auto const pressedAndReleased = [](HWND window) {
        return [window] { return sent(window, WM_LBUTTONDOWN, MK_LBUTTON) + sent(window, WM_LBUTTONUP, 0); };
    };
    BareLook const pressedFocused = button.bareLook(Look::Pressed);
    rows.push_back(rowOf(
        "press and release, both painted",
        compareTimed(rounds, pressedAndReleased(button.window()), pair(bare, pressedFocused, hotFocused)),
        "–"));
    rows.push_back(rowOf(
        "the same, the floor follows the mouse, too",
        compareTimed(rounds, pressedAndReleased(button.window()), pressedAndReleased(follower.window())),
        "–"));
    button.leave(Look::Hot);
    return rows;
}

} // namespace quillet::bench

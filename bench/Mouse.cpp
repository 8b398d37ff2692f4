// What the mouse does to a flat command button, from the message that says so until the new looks are
// painted.
#include "bench/BareFollower.h"
#include "bench/MouseMessage.h"
#include "bench/Rounds.h"
#include "bench/ShownButton.h"
#include "kit/HostWindow.h"
#include "kit/Input.h"

namespace quillet::bench {

namespace {

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

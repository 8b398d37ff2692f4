// What the mouse does to a flat command button, from the message that says so until the new looks are
// painted.
#include "bench/MouseMessage.h"
#include "bench/Rounds.h"
#include "bench/ShownButton.h"
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
    auto const enteredAndLeft = [&] {
        double const entered = movedTo(button.window(), ShownButton::kMiddle);
        require(::GetCapture() == button.window(), "the button does not see the mouse come");
        return entered + movedTo(button.window(), kOutside);
    };
    rows.push_back(rowOf("mouse enters and leaves, both painted",
                         compareTimed(rounds, enteredAndLeft, pair(bare, hot, normal)), "–"));

    button.enter(Look::Hot);
    require(kit::focus(button.window()), "the focus does not move");
    BareLook const pressed = button.bareLook(Look::Pressed);
    BareLook const hotFocused = button.bareLook(Look::Hot);
    auto const pressedAndReleased = [&] {
        return sent(button.window(), WM_LBUTTONDOWN, MK_LBUTTON) + sent(button.window(), WM_LBUTTONUP, 0);
    };
    rows.push_back(rowOf("press and release, both painted",
                         compareTimed(rounds, pressedAndReleased, pair(bare, pressed, hotFocused)), "–"));
    button.leave(Look::Hot);
    return rows;
}

} // namespace quillet::bench

// A flat command button in a visible window, brought into each look as a user brings it there.
#include "bench/ShownButton.h"

#include "base/RunTimeError.h"
#include "bench/Rounds.h"
#include "kit/Canvas.h"
#include "kit/Input.h"
#include "kit/Pump.h"
#include "typelib/Guids.h"

namespace quillet::bench {

namespace {

using Flat = _qvFlatCommand;

/// The properties that make each look, in the order of the looks.
struct Colors {
    GetColour<Flat> fore;
    GetColour<Flat> back;
    GetColour<Flat> border;
};
constexpr Colors kColors[] = {
    {&Flat::get_ForeColor, &Flat::get_BackColor, &Flat::get_BorderColor},
    {&Flat::get_HotForeColor, &Flat::get_HotBackColor, &Flat::get_HotBorderColor},
    {&Flat::get_PressedForeColor, &Flat::get_PressedBackColor, &Flat::get_PressedBorderColor},
    {&Flat::get_DisabledForeColor, &Flat::get_BackColor, &Flat::get_BorderColor},
};

void requireMoved(bool moved) { require(moved, "the cursor does not move"); }

} // namespace

ShownButton::ShownButton(kit::Library const& library)
    : m_factory(library.factory(kQvFlatCommandClass)),
      m_hosted(deref(m_factory.get()), m_saved, m_frame, m_window.handle(), kPlace),
      m_button(m_hosted.as<_qvFlatCommand>())
{
    ComPtr<IOleWindow> const window = m_hosted.as<IOleWindow>();
    check(deref(window.get()).GetWindow(&m_buttonWindow));
    kit::pumpPending();
}

void ShownButton::enter(Look look)
{
    switch (look) {
    case Look::Normal:
        requireMoved(kit::moveCursorAway());
        break;
    case Look::Hot:
        requireMoved(kit::moveCursorTo(m_buttonWindow, kMiddle.x, kMiddle.y));
        break;
    case Look::Pressed:
        enter(Look::Hot);
        kit::press(kit::MouseButton::Left);
        break;
    case Look::Disabled:
        check(m_button->put_Enabled(VARIANT_FALSE));
        break;
    }
    kit::pumpPending();
}

void ShownButton::leave(Look look)
{
    if (look == Look::Pressed) {
        kit::release(kit::MouseButton::Left);
        kit::pumpPending();
        require(kit::focus(m_window.handle()), "the focus does not move");
    }
    if (look == Look::Disabled)
        check(m_button->put_Enabled(VARIANT_TRUE));
    enter(Look::Normal);
}

BarePainter ShownButton::barePainter() const
{
    return {m_buttonWindow, kSize, fontOf(control()), "Save changes"};
}

BareLook ShownButton::bareLook(Look look) const
{
    Colors const& row = kColors[static_cast<int>(look)];
    return {colourOf(control(), row.fore), colourOf(control(), row.back), colourOf(control(), row.border),
            ::GetFocus() == m_buttonWindow};
}

void ShownButton::show(kit::Canvas& canvas) const { kit::readWindow(m_buttonWindow, canvas); }

} // namespace quillet::bench

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

using B = _qvFlatCommand;
using GetColor = HRESULT (STDMETHODCALLTYPE B::*)(OLE_COLOR*);

/// The properties that make each look, in the order of the looks.
struct Colors {
    GetColor fore;
    GetColor back;
    GetColor border;
};
constexpr Colors kColors[] = {
    {&B::get_ForeColor, &B::get_BackColor, &B::get_BorderColor},
    {&B::get_HotForeColor, &B::get_HotBackColor, &B::get_HotBorderColor},
    {&B::get_PressedForeColor, &B::get_PressedBackColor, &B::get_PressedBorderColor},
    {&B::get_DisabledForeColor, &B::get_BackColor, &B::get_BorderColor},
};

COLORREF colorOf(_qvFlatCommand& button, GetColor get)
{
    OLE_COLOR color = 0;
    check((button.*get)(&color));
    COLORREF translated = 0;
    check(::OleTranslateColor(color, nullptr, &translated));
    return translated;
}

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

HFONT fontOf(_qvFlatCommand& button)
{
    ComPtr<IFontDisp> dispatch;
    check(button.get_Font(dispatch.put()));
    HFONT handle = nullptr;
    check(dispatch.as<IFont>(IID_IFont)->get_hFont(&handle));
    return handle;
}

BarePainter ShownButton::barePainter() const
{
    return {m_buttonWindow, kSize, fontOf(control()), "Save changes"};
}

BareLook ShownButton::bareLook(Look look) const
{
    Colors const& row = kColors[static_cast<int>(look)];
    return {colorOf(control(), row.fore), colorOf(control(), row.back), colorOf(control(), row.border),
            ::GetFocus() == m_buttonWindow};
}

void ShownButton::show(kit::Canvas& canvas) const { kit::readWindow(m_buttonWindow, canvas); }

} // namespace quillet::bench

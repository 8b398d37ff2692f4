// The looks of the flat option button and the flat check box: a coloured caption or a shaded glyph.
#include "controls/optioncheck/OptionCheckButton.h"
#include "controls/optioncheck/PendingMessages.h"
#include "drawing/SystemColours.h"

#include <utility>

namespace quillet {

void OptionCheckButton::onPaint()
{
    if (paintsElsewhere())
        return drawElsewhere();
    if (!enabled()) {
        showCaption(colour::kButtonShadow);
        letMessagesRun();
        if (!enabled())
            FillOptionGlyph(true);
        return;
    }
    showState(userMode() && isMouseOver());
}

/// The inner button has painted itself with a white glyph: shades it again where that is due.
void OptionCheckButton::onInnerPainted()
{
    if (m_recolouring)
        return; // within showCaption, whose caller goes on with the glyph
    if (!enabled())
        FillOptionGlyph(true);
    else
        showState(userMode() && isMouseOver());
}

/// Distinct colours make the caption hot; equal ones would show nothing, so the glyph is shaded instead.
void OptionCheckButton::showState(bool hot)
{
    m_hot = hot;
    bool const byColour = foreColor() != m_hotForeColor;
    showCaption(hot && byColour ? m_hotForeColor : foreColor());
    if (!byColour)
        FillOptionGlyph(hot);
}

void OptionCheckButton::showCaption(OLE_COLOR colour)
{
    bool const outer = std::exchange(m_recolouring, true);
    m_inner.setForeColor(colour);
    m_recolouring = outer;
}

void OptionCheckButton::FillOptionGlyph(bool hot)
{
    HWND const window = m_inner.existing();
    if (!window || !userMode())
        return;
    // Never given back: the window's class owns its DC, so this is the same one each time.
    HDC const dc = ::GetDC(window);
    RECT client = {};
    ::GetClientRect(window, &client);
    m_inner.drawFilledGlyph(dc, {client.right, client.bottom},
                            static_cast<HBRUSH>(::GetStockObject(hot ? LTGRAY_BRUSH : WHITE_BRUSH)));
}

void OptionCheckButton::drawElsewhere()
{
    bool const isShaded = userMode() && !enabled();
    m_inner.draw(paintDc(), clientSize(), enabled() ? foreColor() : colour::kButtonShadow,
                 isShaded ? kGlyphShade : kGlyphWhite);
}

void OptionCheckButton::refresh()
{
    m_inner.refresh(); // whose painting ends in showing the state
    if (!enabled())
        repaint();
}

} // namespace quillet

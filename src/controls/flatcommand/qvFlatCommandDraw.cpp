// The flat command button's picture: border, background, focus frame and caption, composed off screen.
#include "base/Checked.h"
#include "controls/button/Caption.h"
#include "controls/button/TaskPane.h"
#include "controls/flatcommand/qvFlatCommand.h"
#include "drawing/Colour.h"
#include "drawing/OffScreenDC.h"
#include "surface/window/PaintTarget.h"
#include "typelib/DispatchIds.h"
#include "typelib/Guids.h"

namespace quillet {

namespace {

constexpr COLORREF kMidGrey = 0x808080;
constexpr COLORREF kLightGrey = 0xE0E0E0;

} // namespace

/// The colours and the border width of one paint.
struct qvFlatCommand::Palette {
    COLORREF fore;
    COLORREF back;
    COLORREF border;
    long borderWidth; ///< pixels
};

/// A paint in progress.
struct qvFlatCommand::Painting {
    bool userMode;
    bool focused;
    VisualState state;
    SIZE size;
    Palette palette;
    OffScreenDC canvas{};
    long inset = 0;  ///< pixels drawn round the background so far
    long marker = 0; ///< those of them that show focus or default; they do not move the caption
};

HRESULT qvFlatCommand::DrawButton()
{
    // A failing call or an overflow ends the paint; a host is not told.
    return call([&] { ignoringErrors([&] { draw(userMode()); }); });
}

void qvFlatCommand::onPaint()
{
    bool const running = userMode();
    decideState(running);
    ignoringErrors([&] { draw(running); });
    if (running)
        raiseEvent(eventid::command::Paint);
}

qvFlatCommand::Palette qvFlatCommand::paletteOf(VisualState state) const
{
    FlatCommandLooks const& looks = m_looks;
    auto const resolved = [](ButtonColours const& row, short borderWidth) {
        return Palette{resolvedColour(row.fore), resolvedColour(row.back), resolvedColour(row.border),
                       borderWidth};
    };
    ButtonColours const taskPane = looks.officeXPColors ? taskPaneColours(state) : ButtonColours{};
    switch (state) {
    case VisualState::Hot:
        return resolved(looks.officeXPColors
                            ? taskPane
                            : ButtonColours{looks.hotForeColor, looks.hotBackColor, looks.hotBorderColor},
                        looks.hotBorderWidth);
    case VisualState::Pressed:
        return resolved(looks.officeXPColors ? taskPane
                                             : ButtonColours{looks.pressedForeColor, looks.pressedBackColor,
                                                             looks.pressedBorderColor},
                        looks.pressedBorderWidth);
    case VisualState::Disabled:
        return resolved(looks.officeXPColors
                            ? taskPane
                            : ButtonColours{looks.disabledForeColor, backColor(), looks.borderColor},
                        looks.borderWidth);
    case VisualState::Normal:
        break;
    }
    return resolved(looks.officeXPColors ? taskPane
                                         : ButtonColours{foreColor(), backColor(), looks.borderColor},
                    looks.borderWidth);
}

void qvFlatCommand::draw(bool userMode)
{
    bool const designedNormal = !userMode && state() != VisualState::Disabled;
    VisualState const shown = designedNormal ? VisualState::Normal : state();
    SIZE const size = clientSize();
    if (isEmpty(size)) { // while a form loads
        setAccessKeys(SplitCaption(m_looks.caption.view()).accessKey);
        return;
    }
    Painting painting = {userMode, window().hasFocus(), shown, size, paletteOf(shown)};
    PaintTarget const target(*this);
    open(painting.canvas, target.dc(), painting.size);
    drawBorder(painting);
    drawBackground(painting);
    drawFocusFrame(painting);
    drawCaption(painting);
    painting.canvas.BlastToScreen(0, 0, -1, -1);
}

void qvFlatCommand::drawBorder(Painting& painting) const
{
    if (m_looks.borderStyle != kFixedBorder)
        return;
    // The buttons whose focus takes the emphasis from the form's default button. A tool button is not one.
    static constexpr IID kEmphasisTakers[] = {kQvFlatCommandInterface, kQvImageCommandInterface,
                                              kIntrinsicButton};
    Palette& palette = painting.palette;
    bool const showsEmphasis = !m_looks.officeXPColors || painting.state == VisualState::Normal;
    if (showsEmphasis && (painting.focused || isEmphasisedDefault(painting.userMode, kEmphasisTakers))) {
        palette.borderWidth = checkedAdd(palette.borderWidth, 1);
        painting.marker = 1;
        if (m_looks.officeXPColors)
            palette.border = RGB(0, 0, 0);
    }
    painting.canvas.FillRect(0, 0, painting.size.cx, painting.size.cy, palette.border);
    painting.inset = palette.borderWidth;
}

void qvFlatCommand::drawBackground(Painting& painting) const
{
    painting.canvas.TextColor(painting.palette.fore);
    painting.canvas.FillRect(painting.inset, painting.inset, between(painting.size.cx, painting.inset),
                             between(painting.size.cy, painting.inset), painting.palette.back);
}

void qvFlatCommand::drawFocusFrame(Painting& painting) const
{
    if (!painting.userMode || !m_looks.showFocusRectangle || !painting.focused)
        return;
    constexpr long kGap = 2;
    painting.inset = checkedAdd(painting.inset, kGap);
    painting.marker += kGap;
    // On a mid grey background the mid grey frame would vanish.
    COLORREF const frame = painting.palette.back == kMidGrey ? kLightGrey : kMidGrey;
    long const width = between(painting.size.cx, painting.inset);
    long const height = between(painting.size.cy, painting.inset);
    long const inside = checkedAdd(painting.inset, 1);
    painting.canvas.FillRect(painting.inset, painting.inset, width, height, frame);
    painting.canvas.FillRect(inside, inside, checkedSubtract(width, 2), checkedSubtract(height, 2),
                             painting.palette.back);
}

long qvFlatCommand::captionLeft(Painting const& painting, std::wstring_view caption) const
{
    if (m_looks.centreCaption)
        return centred(painting.size.cx, painting.canvas.textExtent(caption).cx);
    return checkedAdd(checkedSubtract(painting.inset, painting.marker), m_looks.captionIndent);
}

void qvFlatCommand::drawCaption(Painting& painting)
{
    SplitCaption const caption(m_looks.caption.view());
    setAccessKeys(caption.accessKey);

    CaptionSpace const space = {painting.size, painting.inset, painting.palette.back};
    writeCaption(painting.canvas, surfaceFont(), caption, space, captionLeft(painting, caption.shown));
}

} // namespace quillet

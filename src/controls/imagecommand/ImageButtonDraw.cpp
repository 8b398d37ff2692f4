// An image button's picture: which look, which image and where; background, border and caption composed off
// screen.
#include "base/Checked.h"
#include "controls/button/Caption.h"
#include "controls/button/TaskPane.h"
#include "controls/imagecommand/ImageButton.h"
#include "drawing/Colour.h"
#include "drawing/OffScreenDC.h"
#include "drawing/SystemColours.h"
#include "drawing/xpstate.h"
#include "saving/StandardPicture.h"
#include "surface/window/PaintTarget.h"
#include "typelib/DispatchIds.h"
#include "typelib/Guids.h"

#include <algorithm>
#include <cmath>

namespace quillet {

namespace {

constexpr long kPictureMargin = 4; // pixels inside the border, whatever the caption's indent
constexpr long kPictureGap = 1;    // pixels between picture and caption

/// The first picture that is not empty; the last where all are.
template <class... More> IPictureDisp* firstSet(IPictureDisp* picture, More*... more) noexcept
{
    if constexpr (sizeof...(more) == 0)
        return picture;
    else
        return isEmptyPicture(picture) ? firstSet(more...) : picture;
}

} // namespace

/// The colours and the border width of one paint.
struct ImageButton::Palette {
    COLORREF fore;
    COLORREF back;
    COLORREF light;
    COLORREF dark;
    long borderWidth; ///< pixels, of a drawn border with its emphasis
};

/// A paint in progress.
struct ImageButton::Painting {
    bool userMode;
    SIZE size;
    Palette palette;
    OffScreenDC canvas{};
};

void ImageButton::onPaint()
{
    bool const running = userMode();
    bool const reacting = m_looks.active && running;
    decideState(reacting);
    m_image1.setPicture(shownPicture(reacting));
    placePicture();
    draw();
    if (running)
        raiseEvent(eventid::command::Paint);
}

IPictureDisp* ImageButton::shownPicture(bool reacting) const noexcept
{
    ImageLooks const& looks = m_looks;
    IPictureDisp* const image = looks.image.get();
    if (!reacting)
        return image;
    switch (state()) {
    case VisualState::Hot:
        return firstSet(looks.hotImage.get(), image);
    case VisualState::Pressed:
        return firstSet(looks.pressedImage.get(), looks.hotImage.get(), image);
    case VisualState::Disabled:
        return firstSet(looks.disabledImage.get(), image);
    case VisualState::Normal:
        break;
    }
    return isChecked() ? firstSet(looks.pressedImage.get(), image) : image;
}

/// How far picture and caption are shifted, in pixels.
long ImageButton::pressedOffset() const noexcept
{
    bool const pressed = state() == VisualState::Pressed;
    if (!m_looks.offsetPressed || !(pressed || isChecked()))
        return 0;
    return m_looks.checkButton && pressed ? 2 : 1;
}

/// Where the picture stands beside a caption, unshifted: by the normal border whatever the look.
long ImageButton::pictureLeft() const
{
    return checkedAdd(checkedMultiply(m_looks.borderWidth, m_looks.borderStyle), kPictureMargin);
}

void ImageButton::placePicture()
{
    if (m_image1.isEmpty() || isEmpty(clientSize()))
        return;
    TwipsPerPixel const& twips = window().twipsPerPixel();
    SIZE const size = clientSize();
    SIZE const picture = m_image1.size();
    long const offset = pressedOffset();
    // Positions are in twips, where half a pixel can be told, unless it is rounded down to whole twips.
    double const top = (size.cy - picture.cy) * twips.y / 2;
    if (!m_looks.caption.view().empty()) {
        m_image1.moveTo(
            {checkedAdd(pictureLeft(), offset), checkedAdd(roundedToEven(top / twips.y), offset)});
        return;
    }
    double const left = (size.cx - picture.cx) * twips.x / 2;
    m_image1.moveTo({checkedAdd(roundedToEven(std::floor(left) / twips.x), offset),
                     checkedAdd(roundedToEven(std::floor(top) / twips.y), offset)});
}

ImageButton::Palette ImageButton::palette(bool userMode) const
{
    ImageLooks const& looks = m_looks;
    struct Unresolved {
        OLE_COLOR fore, back, light, dark;
        short borderWidth;
    };
    Unresolved row = {};
    switch (state()) {
    case VisualState::Normal:
        row = {foreColor(), backColor(), looks.lightBorderColor, looks.darkBorderColor, looks.borderWidth};
        break;
    case VisualState::Hot:
        row = {looks.hotForeColor, looks.hotBackColor, looks.hotLightBorderColor, looks.hotDarkBorderColor,
               looks.hotBorderWidth};
        break;
    case VisualState::Pressed:
        row = {looks.pressedForeColor, looks.pressedBackColor, looks.pressedLightBorderColor,
               looks.pressedDarkBorderColor, looks.pressedBorderWidth};
        break;
    case VisualState::Disabled:
        row = {looks.disabledForeColor, backColor(), looks.lightBorderColor, looks.darkBorderColor,
               looks.borderWidth};
        break;
    }
    bool const resting = state() == VisualState::Normal;
    if (looks.officeXPColors) {
        ButtonColours const pane = taskPaneColours(state());
        OLE_COLOR border = pane.border;
        if (resting && m_kind.restingBorder == RestingBorder::WhileLaidOut)
            border = userMode ? backColor() : colour::kSelectionHighlight;
        row = {pane.fore, pane.back, border, border, row.borderWidth};
    }
    if (isChecked()) {
        bool const pane = looks.officeXPColors;
        row.light = pane ? colour::kSelectionHighlight : looks.checkedLightBorderColor;
        row.dark = pane ? colour::kSelectionHighlight : looks.checkedDarkBorderColor;
        if (resting)
            row.back = pane ? XPStateColor(VARIANT_FALSE) : looks.checkedBackColor;
    }
    return {resolvedColour(row.fore), resolvedColour(row.back), resolvedColour(row.light),
            resolvedColour(row.dark), row.borderWidth};
}

void ImageButton::draw()
{
    SIZE const size = clientSize();
    if (isEmpty(size)) { // while a form loads
        setAccessKeys(SplitCaption(m_looks.caption.view()).accessKey);
        return;
    }
    bool const running = userMode();
    Painting painting = {running, size, palette(running)};
    PaintTarget const target(*this);
    OffScreenDC& canvas = painting.canvas;
    open(canvas, target.dc(), painting.size);
    canvas.TextColor(painting.palette.fore);
    canvas.FillRect(0, 0, painting.size.cx, painting.size.cy, painting.palette.back);
    drawCaption(painting, drawBorder(painting));
    m_image1.draw(canvas.dc());
    canvas.BlastToScreen(0, 0, -1, -1);
}

/// Answers how many pixels it drew round the background.
long ImageButton::drawBorder(Painting& painting)
{
    if (m_looks.borderStyle != kFixedBorder)
        return 0;
    Palette& palette = painting.palette;
    // The buttons whose focus takes the emphasis from the form's default button: no image button is one.
    static constexpr IID kEmphasisTakers[] = {kQvFlatCommandInterface, kIntrinsicButton};
    if (window().hasFocus() || isEmphasisedDefault(painting.userMode, kEmphasisTakers))
        palette.borderWidth = checkedAdd(palette.borderWidth, 1);
    // Rings beyond the whole surface show nothing, but a saved form may ask for thousands.
    long const visible = std::min(palette.borderWidth, std::max(painting.size.cx, painting.size.cy));
    painting.canvas.Draw3DBorder(palette.light, palette.dark, visible);
    return palette.borderWidth;
}

/// The indent counts from the border's width, also where the button shows no border.
long ImageButton::captionLeft(Painting const& painting, std::wstring_view caption) const
{
    if (m_looks.centreCaption)
        return centred(painting.size.cx, painting.canvas.textExtent(caption).cx);
    if (!m_image1.isEmpty())
        return checkedAdd(pictureLeft(), checkedAdd(m_image1.size().cx, kPictureGap));
    return checkedAdd(painting.palette.borderWidth, m_looks.captionIndent);
}

void ImageButton::drawCaption(Painting& painting, long inset)
{
    SplitCaption const caption(m_looks.caption.view());
    setAccessKeys(caption.accessKey);

    long const offset = pressedOffset();
    CaptionSpace const space = {painting.size, inset, painting.palette.back, offset};
    writeCaption(painting.canvas, surfaceFont(), caption, space,
                 checkedAdd(captionLeft(painting, caption.shown), offset));
}

} // namespace quillet

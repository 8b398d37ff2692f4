// The flat command button's picture: border, face, focus frame and caption, composed off screen.
#include "base/Checked.h"
#include "controls/flatcommand/qvFlatCommand.h"
#include "drawing/Colour.h"
#include "drawing/OffScreenDC.h"
#include "drawing/xpstate.h"
#include "typelib/DispatchIds.h"
#include "winsvc/modCmdSupport.h"

#include <string>
#include <string_view>

namespace quillet {

namespace {

// The system colours of the task-pane look.
constexpr OLE_COLOR kSelectionHighlight = 0x8000000D;
constexpr OLE_COLOR kButtonFace = 0x8000000F;
constexpr OLE_COLOR kButtonShadow = 0x80000010;
constexpr OLE_COLOR kButtonText = 0x80000012;
constexpr OLE_COLOR k3dHighlight = 0x80000014;
constexpr OLE_COLOR kBlack = 0;

constexpr COLORREF kMidGrey = 0x808080;
constexpr COLORREF kLightGrey = 0xE0E0E0;

constexpr long kFixedSingle = 1;

/// The host's own command button.
constexpr IID kIntrinsicButton = {
    0x33AD4EF1, 0x6699, 0x11CF, {0xB7, 0x0C, 0x00, 0xAA, 0x00, 0x60, 0xD3, 0x93}};

/// The buttons whose focus takes the emphasis from the form's default button. A tool button is not one.
bool isEmphasisTaker(IUnknown* control)
{
    for (IID const& kind : {__uuidof(_qvFlatCommand), __uuidof(_qvImageCommand), kIntrinsicButton})
        if (controlInterface(control, kind))
            return true;
    return false;
}

/// A caption without its access-key mark. Only the first mark counts; two in a row are no escape.
struct SplitCaption {
    explicit SplitCaption(std::wstring_view caption)
    {
        size_t const found = caption.find(L'&');
        marked = found != std::wstring_view::npos;
        if (!marked) {
            shown = caption;
            return;
        }
        narrowed<short>(found + 1); // a position in a caption has 16 bits
        keyAt = found;
        accessKey = caption.substr(found + 1, 1);
        shown.append(caption.substr(0, found)).append(caption.substr(found + 1));
    }

    std::wstring shown;
    std::wstring accessKey;
    bool marked = false;
    size_t keyAt = 0; ///< where the access key stands in the shown text
};

/// a less twice b, the size of what is left between two insets.
long between(long a, long b) { return checkedSubtract(a, checkedMultiply(2, b)); }

/// Where something is placed whose middle is the middle of the space, in pixels.
long centred(long space, long length) { return roundedToEven(space / 2.0 - length / 2.0); }

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
    long inset = 0;  ///< pixels drawn round the face so far
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
    m_state = currentState(running);
    ignoringErrors([&] { draw(running); });
    if (running)
        raiseEvent(eventid::command::Paint);
}

VisualState qvFlatCommand::currentState(bool userMode)
{
    if (!userMode)
        return VisualState::Normal;
    if (!enabled()) {
        m_pressed = false;
        return VisualState::Disabled;
    }
    if (!isOver()) {
        m_pressed = false;
        return VisualState::Normal;
    }
    return m_pressed ? VisualState::Pressed : VisualState::Hot;
}

qvFlatCommand::Palette qvFlatCommand::paletteOf(VisualState state) const
{
    FlatCommandLooks const& looks = m_looks;
    struct Unresolved {
        OLE_COLOR fore, back, border;
        short borderWidth;
    };
    auto const resolved = [](Unresolved const& row) {
        return Palette{resolvedColour(row.fore), resolvedColour(row.back), resolvedColour(row.border),
                       row.borderWidth};
    };
    bool const taskPane = looks.officeXPColors;
    switch (state) {
    case VisualState::Hot:
        return resolved(taskPane ? Unresolved{kButtonText, XPStateColor(VARIANT_FALSE), kSelectionHighlight,
                                              looks.hotBorderWidth}
                                 : Unresolved{looks.hotForeColor, looks.hotBackColor, looks.hotBorderColor,
                                              looks.hotBorderWidth});
    case VisualState::Pressed:
        return resolved(taskPane ? Unresolved{k3dHighlight, XPStateColor(VARIANT_TRUE), kSelectionHighlight,
                                              looks.pressedBorderWidth}
                                 : Unresolved{looks.pressedForeColor, looks.pressedBackColor,
                                              looks.pressedBorderColor, looks.pressedBorderWidth});
    case VisualState::Disabled:
        return resolved(taskPane ? Unresolved{kButtonShadow, kButtonFace, kButtonShadow, looks.borderWidth}
                                 : Unresolved{looks.disabledForeColor, backColor(), looks.borderColor,
                                              looks.borderWidth});
    case VisualState::Normal:
        break;
    }
    return resolved(taskPane ? Unresolved{kButtonText, kButtonFace, kButtonShadow, looks.borderWidth}
                             : Unresolved{foreColor(), backColor(), looks.borderColor, looks.borderWidth});
}

bool qvFlatCommand::isEmphasisedDefault(bool userMode) const
{
    if (!userMode || !isDefault(*this))
        return false;
    return !isEmphasisTaker(container().activeControl().get());
}

void qvFlatCommand::draw(bool userMode)
{
    bool const designedNormal = !userMode && m_state != VisualState::Disabled;
    VisualState const state = designedNormal ? VisualState::Normal : m_state;
    Painting painting = {userMode, window().hasFocus(), state, clientSize(), paletteOf(state)};
    painting.canvas.Initialize(hDC(), painting.size.cx, painting.size.cy);
    takeUnderlineOff();
    painting.canvas.Font(font());
    drawBorder(painting);
    drawFace(painting);
    drawFocusFrame(painting);
    drawCaption(painting);
    painting.canvas.BlastToScreen(0, 0, -1, -1);
}

void qvFlatCommand::drawBorder(Painting& painting) const
{
    if (m_looks.borderStyle != kFixedSingle)
        return;
    Palette& palette = painting.palette;
    bool const showsEmphasis = !m_looks.officeXPColors || painting.state == VisualState::Normal;
    if (showsEmphasis && (painting.focused || isEmphasisedDefault(painting.userMode))) {
        palette.borderWidth = checkedAdd(palette.borderWidth, 1);
        painting.marker = 1;
        if (m_looks.officeXPColors)
            palette.border = resolvedColour(kBlack);
    }
    painting.canvas.FillRect(0, 0, painting.size.cx, painting.size.cy, palette.border);
    painting.inset = palette.borderWidth;
}

void qvFlatCommand::drawFace(Painting& painting) const
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
    // On a mid grey face the mid grey frame would vanish.
    COLORREF const frame = painting.palette.back == kMidGrey ? kLightGrey : kMidGrey;
    long const width = between(painting.size.cx, painting.inset);
    long const height = between(painting.size.cy, painting.inset);
    long const inside = checkedAdd(painting.inset, 1);
    painting.canvas.FillRect(painting.inset, painting.inset, width, height, frame);
    painting.canvas.FillRect(inside, inside, checkedSubtract(width, 2), checkedSubtract(height, 2),
                             painting.palette.back);
}

/// Underline belongs to the access key: a font that has it loses it for good at the next paint.
void qvFlatCommand::takeUnderlineOff()
{
    SurfaceFont::Deaf const ownChange(surfaceFont());
    check(font()->put_Underline(FALSE));
}

long qvFlatCommand::captionLeft(Painting const& painting, long captionWidth) const
{
    if (m_looks.centreCaption)
        return centred(painting.size.cx, captionWidth);
    return checkedAdd(checkedSubtract(painting.inset, painting.marker), m_looks.captionIndent);
}

void qvFlatCommand::drawCaption(Painting& painting)
{
    SplitCaption const caption(m_looks.caption.view());
    setAccessKeys(caption.accessKey);

    OffScreenDC& canvas = painting.canvas;
    std::wstring_view const shown = caption.shown;
    SIZE const extent = canvas.textExtent(shown);
    long const x = captionLeft(painting, extent.cx);
    long const y = centred(painting.size.cy, extent.cy);
    if (!caption.marked) {
        drawPiece(painting, shown, x, y);
        return;
    }
    // Each piece starts further right and so never paints over an earlier one.
    auto const before = shown.substr(0, caption.keyAt);
    auto const key = shown.substr(caption.keyAt, 1);
    auto const after = shown.substr(caption.keyAt + key.size());
    long const keyX = before.empty() ? x : checkedAdd(x, canvas.textExtent(before).cx);
    long const afterX = checkedAdd(keyX, canvas.textExtent(key).cx);
    if (!before.empty())
        drawPiece(painting, before, x, y);
    canvas.Font(surfaceFont().underlined());
    drawPiece(painting, key, keyX, y);
    canvas.Font(font());
    drawPiece(painting, after, afterX, y);
}

void qvFlatCommand::drawPiece(Painting& painting, std::wstring_view text, long x, long y) const
{
    long const width =
        checkedSubtract(checkedSubtract(checkedSubtract(painting.size.cx, x), painting.inset), 1);
    long const height = checkedSubtract(between(painting.size.cy, painting.inset), 2);
    painting.canvas.FillRect(x, checkedAdd(painting.inset, 1), width, height, painting.palette.back, x, y,
                             text);
}

} // namespace quillet

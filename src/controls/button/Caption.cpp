// A button's caption: its access key, and its text in up to three pieces.
#include "controls/button/Caption.h"

#include "base/Checked.h"
#include "drawing/OffScreenDC.h"

namespace quillet {

namespace {

void writePiece(OffScreenDC& canvas, CaptionSpace const& space, std::wstring_view text, long x, long y)
{
    long const width = checkedSubtract(checkedSubtract(checkedSubtract(space.size.cx, x), space.inset), 1);
    long const height = checkedSubtract(between(space.size.cy, space.inset), 2);
    canvas.FillRect(x, checkedAdd(space.inset, 1), width, height, space.back, x, y, text);
}

} // namespace

SplitCaption::SplitCaption(std::wstring_view caption)
{
    size_t const found = caption.find(L'&');
    marked = found != std::wstring_view::npos;
    if (!marked) {
        shown = caption;
        return;
    }
    narrowed<short>(found + 1); // Overflow where the position has more than 16 bits
    keyAt = found;
    accessKey = caption.substr(found + 1, 1);
    shown.append(caption.substr(0, found)).append(caption.substr(found + 1));
}

long between(long a, long b) { return checkedSubtract(a, checkedMultiply(2, b)); }

long centred(long space, long length) { return roundedToEven(space / 2.0 - length / 2.0); }

void writeCaption(OffScreenDC& canvas, SurfaceFont& font, SplitCaption const& caption,
                  CaptionSpace const& space, long left)
{
    auto const topOf = [&](SIZE const& extent) {
        return checkedAdd(centred(space.size.cy, extent.cy), space.shift);
    };
    std::wstring_view const shown = caption.shown;
    if (!caption.marked) {
        writePiece(canvas, space, shown, left, topOf(canvas.textExtent(shown)));
        return;
    }
    // Each piece starts further right and so never paints over an earlier one. One piece is measured for the
    // height of all, as measuring costs as much as a fill.
    auto const before = shown.substr(0, caption.keyAt);
    auto const key = shown.substr(caption.keyAt, 1);
    auto const after = shown.substr(caption.keyAt + key.size());
    SIZE const keyExtent = canvas.textExtent(key);
    SIZE const first = before.empty() ? keyExtent : canvas.textExtent(before);
    long const top = topOf(first);
    long const keyLeft = before.empty() ? left : checkedAdd(left, first.cx);
    long const afterLeft = checkedAdd(keyLeft, keyExtent.cx);
    if (!before.empty())
        writePiece(canvas, space, before, left, top);
    canvas.Font(font.underlined());
    writePiece(canvas, space, key, keyLeft, top);
    canvas.Font(font.get());
    writePiece(canvas, space, after, afterLeft, top);
}

} // namespace quillet

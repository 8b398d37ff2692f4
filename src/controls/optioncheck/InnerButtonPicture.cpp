// The picture of an inner option button or check box: flat and black on white, whatever the desktop's style.
#include "controls/optioncheck/InnerButtonPicture.h"

#include "base/Checked.h"
#include "base/Handles.h"

#include <algorithm>
#include <array>

namespace quillet {

namespace {

constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kGrey = RGB(128, 128, 128);

constexpr long kGlyphSize = 13; // pixels
constexpr long kCaptionLeft = kGlyphSize + 4;
constexpr POINT kFillPoint = {4, 4}; // of the glyph

/// '#' outline, '-' inside, 'x' mark, anything else is outside.
using Glyph = std::array<std::string_view, kGlyphSize>;

constexpr Glyph kOption = {
    "....####.....", //
    "..##----##...", //
    ".#--------#..", //
    ".#--------#..", //
    "#----xx----#.", //
    "#---xxxx---#.", //
    "#---xxxx---#.", //
    "#----xx----#.", //
    ".#--------#..", //
    ".#--------#..", //
    "..##----##...", //
    "....####.....", //
    ".............", //
};

constexpr Glyph kCheck = {
    "#############", //
    "#-----------#", //
    "#-----------#", //
    "#--------x--#", //
    "#-------xx--#", //
    "#--x---xxx--#", //
    "#--xx-xxx---#", //
    "#--xxxxx----#", //
    "#---xxx-----#", //
    "#----x------#", //
    "#-----------#", //
    "#-----------#", //
    "#############", //
};

// The colours of a glyph's bits.
enum ColourIndex : BYTE { Outside, Outline, Inside, Mark, Colours };

constexpr BYTE indexOf(char letter)
{
    return letter == '#' ? Outline : letter == '-' ? Inside : letter == 'x' ? Mark : Outside;
}

constexpr long kRowBytes = (kGlyphSize + 3) / 4 * 4;
using GlyphBits = std::array<BYTE, kGlyphSize * kRowBytes>;

/// A byte a pixel, the bottom row first, as device-independent bitmaps have it.
constexpr GlyphBits bitsOf(Glyph const& glyph)
{
    GlyphBits bits{};
    for (long y = 0; y < kGlyphSize; ++y)
        for (long x = 0; x < kGlyphSize; ++x)
            bits[static_cast<size_t>((kGlyphSize - 1 - y) * kRowBytes + x)] =
                indexOf(glyph[static_cast<size_t>(y)][static_cast<size_t>(x)]);
    return bits;
}

constexpr GlyphBits kOptionBits = bitsOf(kOption);
constexpr GlyphBits kCheckBits = bitsOf(kCheck);

COLORREF markColour(GlyphLook const& look) noexcept
{
    if (look.value == 0)
        return look.inside;
    return look.value == 1 ? kBlack : kGrey;
}

/// Where the fill of a button of that height in pixels begins: inside the outline, clear of the mark. The
/// picture is placed round it.
POINT fillPointAt(long height)
{
    constexpr double kAboveMiddle = 2.0;
    return {kFillPoint.x, roundedToEven(height / 2.0 - kAboveMiddle)};
}

POINT glyphAt(long height)
{
    POINT const inside = fillPointAt(height);
    return {inside.x - kFillPoint.x, inside.y - kFillPoint.y};
}

void drawGlyph(HDC dc, long height, GlyphLook const& look)
{
    struct {
        BITMAPINFOHEADER header;
        RGBQUAD colours[Colours];
    } info = {};
    info.header = {sizeof(info.header), kGlyphSize, kGlyphSize, 1, 8, BI_RGB, 0, 0, 0, Colours, 0};
    auto const set = [&](ColourIndex index, COLORREF colour) {
        info.colours[index] = {GetBValue(colour), GetGValue(colour), GetRValue(colour), 0};
    };
    set(Outside, look.back);
    set(Outline, kBlack);
    set(Inside, look.inside);
    set(Mark, markColour(look));
    POINT const at = glyphAt(height);
    GlyphBits const& bits = look.kind == InnerKind::Option ? kOptionBits : kCheckBits;
    ::SetDIBitsToDevice(dc, at.x, at.y, kGlyphSize, kGlyphSize, 0, 0, 0, kGlyphSize, bits.data(),
                        reinterpret_cast<BITMAPINFO const*>(&info), DIB_RGB_COLORS);
}

/// Writes the grey mark again: only black stops the fill, which has gone over it.
void drawThirdStateMark(HDC dc, long height)
{
    POINT const at = glyphAt(height);
    for (long y = 0; y < kGlyphSize; ++y)
        for (long x = 0; x < kGlyphSize; ++x)
            if (kCheck[static_cast<size_t>(y)][static_cast<size_t>(x)] == 'x')
                ::SetPixelV(dc, at.x + x, at.y + y, kGrey);
}

constexpr UINT kCaptionFormat = DT_LEFT | DT_TOP | DT_WORDBREAK;

/// The caption wraps where it is too long, and stands in the middle of the height.
RECT placeOfCaption(HDC dc, SIZE size, InnerLook const& look)
{
    CaptionPlace& place = look.place;
    if (place.size.cx == size.cx && place.size.cy == size.cy)
        return place.text;
    RECT text = {kCaptionLeft, 0, std::max(size.cx, kCaptionLeft + 1), size.cy};
    ::DrawTextW(dc, look.caption.data(), static_cast<int>(look.caption.size()), &text,
                kCaptionFormat | DT_CALCRECT);
    ::OffsetRect(&text, 0, (size.cy - (text.bottom - text.top)) / 2);
    place = {size, text};
    return text;
}

void drawCaption(HDC dc, SIZE size, InnerLook const& look)
{
    if (look.caption.empty())
        return;
    RECT text = placeOfCaption(dc, size, look);
    ::SetTextColor(dc, look.fore);
    ::SetBkMode(dc, TRANSPARENT);
    ::DrawTextW(dc, look.caption.data(), static_cast<int>(look.caption.size()), &text,
                kCaptionFormat | DT_NOCLIP);
    if (!look.focused)
        return;
    RECT const all = {kCaptionLeft - 1, 0, size.cx, size.cy};
    ::InflateRect(&text, 1, 1);
    ::IntersectRect(&text, &text, &all);
    ::SetTextColor(dc, kBlack); // the focus frame is drawn in the text's colour, on every other pixel
    ::DrawFocusRect(dc, &text);
}

} // namespace

void drawInnerButton(HDC dc, SIZE size, InnerLook const& look)
{
    UniqueMemoryDc const memory(::CreateCompatibleDC(dc));
    UniqueBitmap const bitmap(::CreateCompatibleBitmap(dc, size.cx, size.cy));
    SelectScope const selectedBitmap(memory.get(), bitmap.get());
    SelectScope const selectedFont(memory.get(), look.font);
    RECT const all = {0, 0, size.cx, size.cy};
    ::SetBkColor(memory.get(), look.glyph.back);
    ::ExtTextOutW(memory.get(), 0, 0, ETO_OPAQUE, &all, nullptr, 0, nullptr);
    drawGlyph(memory.get(), size.cy, look.glyph);
    drawCaption(memory.get(), size, look);
    ::BitBlt(dc, 0, 0, size.cx, size.cy, memory.get(), 0, 0, SRCCOPY);
}

void drawFilledGlyph(HDC dc, SIZE size, GlyphLook const& look, HBRUSH brush)
{
    // The fill compares whole pixels, and some systems change bits above the colours when a window's picture
    // reaches the screen, which may be between any two calls: on the window no pixel would be sure to equal
    // black, and the fill would run over everything.
    long const width = std::min(size.cx, kGlyphSize);
    UniqueMemoryDc const memory(::CreateCompatibleDC(dc));
    UniqueBitmap const bitmap(::CreateCompatibleBitmap(dc, width, size.cy));
    SelectScope const selectedBitmap(memory.get(), bitmap.get());
    SelectScope const selectedBrush(memory.get(), brush);
    drawGlyph(memory.get(), size.cy, look);
    POINT const inside = fillPointAt(size.cy);
    ::ExtFloodFill(memory.get(), inside.x, inside.y, kBlack, FLOODFILLBORDER);
    if (look.value == 2)
        drawThirdStateMark(memory.get(), size.cy);
    long const top = glyphAt(size.cy).y;
    ::BitBlt(dc, 0, top, width, kGlyphSize, memory.get(), 0, top, SRCCOPY);
}

} // namespace quillet

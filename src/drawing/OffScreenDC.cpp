// The off-screen bitmap on which a control composes its picture before one copy to the screen.
#include "drawing/OffScreenDC.h"

#include "base/Checked.h"
#include "drawing/AnsiText.h"

namespace quillet {

namespace {

constexpr long kWholeLength = -1; // a width or height left out: the bitmap's

RECT rectangleOf(long left, long top, long width, long height)
{
    return {left, top, checkedAdd(left, width), checkedAdd(top, height)};
}

} // namespace

OffScreenDC::~OffScreenDC()
{
    if (!m_memoryDc)
        return;
    ::SelectObject(m_memoryDc.get(), m_initialFont);
    UniqueBitmap const bitmap(static_cast<HBITMAP>(::SelectObject(m_memoryDc.get(), m_initialBitmap)));
}

COLORREF OffScreenDC::BackColor() const noexcept { return ::GetBkColor(m_memoryDc.get()); }
void OffScreenDC::BackColor(COLORREF rgbNew) noexcept { ::SetBkColor(m_memoryDc.get(), rgbNew); }
COLORREF OffScreenDC::TextColor() const noexcept { return ::GetTextColor(m_memoryDc.get()); }
void OffScreenDC::TextColor(COLORREF rgbNew) noexcept { ::SetTextColor(m_memoryDc.get(), rgbNew); }

ComPtr<IFontDisp> OffScreenDC::Font() const noexcept { return m_font.as<IFontDisp>(IID_IFontDisp); }

void OffScreenDC::Font(IFont* newFont)
{
    if (!m_font) {
        m_font = newFont;
        m_initialFont = selectFont();
        return;
    }
    // Given up first: a font that nobody else holds is gone before its successor is asked for a handle.
    m_font.reset();
    m_font = newFont;
    if (m_font)
        selectFont();
    else
        ::SelectObject(m_memoryDc.get(), m_initialFont);
}

/// Selects the stored font's handle and answers what it replaces.
HGDIOBJ OffScreenDC::selectFont() const
{
    if (!m_font)
        throw RunTimeError(ErrorNumber::ObjectNotSet);
    HFONT handle = nullptr;
    check(m_font->get_hFont(&handle), IID_IFont);
    return ::SelectObject(m_memoryDc.get(), handle);
}

void OffScreenDC::Initialize(HDC ctlHdc, long ctlWidth, long ctlHeight) noexcept
{
    m_targetDc = ctlHdc;
    m_width = ctlWidth;
    m_height = ctlHeight;
    // The owner lets go instead of closing: a second call leaves the first pair alive, as it is promised to
    // overwrite the handles and to do nothing else. No control calls twice.
    m_memoryDc.release();
    m_memoryDc.reset(::CreateCompatibleDC(ctlHdc));
    // Compatible with the target: of a new memory DC it would be monochrome.
    HBITMAP const bitmap = ::CreateCompatibleBitmap(ctlHdc, ctlWidth, ctlHeight);
    m_initialBitmap = ::SelectObject(m_memoryDc.get(), bitmap);
}

void OffScreenDC::FillRect(long left, long top, long width, long height, COLORREF rgbColor, long captionX,
                           long captionY, std::wstring_view caption, short /*captionAlign*/)
{
    BackColor(rgbColor);
    writeOpaque(captionX, captionY, rectangleOf(left, top, width, height), caption);
}

void OffScreenDC::InvertRectangle(long left, long top, long width, long height)
{
    RECT const rectangle = rectangleOf(left, top, width, height);
    ::InvertRect(m_memoryDc.get(), &rectangle);
}

void OffScreenDC::BlastToScreen(long left, long top, long& width, long& height) const noexcept
{
    if (width == kWholeLength)
        width = m_width;
    if (height == kWholeLength)
        height = m_height;
    ::BitBlt(m_targetDc, left, top, width, height, m_memoryDc.get(), left, top, SRCCOPY);
}

void OffScreenDC::BlastToScreen(long left, long top, long& width) const noexcept
{
    long height = kWholeLength;
    BlastToScreen(left, top, width, height);
}

void OffScreenDC::BlastToScreen(long left, long top, long&& width, long&& height) const noexcept
{
    BlastToScreen(left, top, width, height); // the names are lvalues: this calls the overload above
}

void OffScreenDC::BlastToScreen(long left, long top) const noexcept
{
    BlastToScreen(left, top, long{kWholeLength}, long{kWholeLength});
}

SIZE OffScreenDC::textExtent(std::wstring_view text) const { return AnsiText(text).extent(m_memoryDc.get()); }

void OffScreenDC::PrintString(long x, long y, std::wstring_view caption)
{
    writeOpaque(x, y, RECT{x, y, m_width, m_height}, caption);
}

Variant OffScreenDC::Draw3DBorder(COLORREF topColor, COLORREF bottomColor, long width)
{
    long const last = checkedSubtract(width, 1);
    for (long i = 0; i <= last; ++i) {
        // Right is the last column of the ring, bottom one past its last row: Draw3DRect takes 1 off the
        // bottom only, so both edges come out alike.
        RECT const ring{i, i, checkedSubtract(checkedSubtract(m_width, i), 1), checkedSubtract(m_height, i)};
        Draw3DRect(m_memoryDc.get(), ring, topColor, bottomColor);
    }
    return {};
}

/// Draws the edges of one ring. No SelectScope here: the DC is left with the stock pen and brush, which are a
/// new DC's own, whatever it had before.
Variant OffScreenDC::Draw3DRect(HDC dc, RECT const& rectangle, COLORREF topColor, COLORREF bottomColor)
{
    ::SelectObject(dc, ::GetStockObject(NULL_BRUSH));
    ::SetROP2(dc, R2_COPYPEN);
    int const lastRow = checkedSubtract(rectangle.bottom, 1);
    ::MoveToEx(dc, rectangle.left, lastRow, nullptr);
    {
        UniquePen const top(::CreatePen(PS_SOLID, 1, topColor));
        ::SelectObject(dc, top.get());
        ::LineTo(dc, rectangle.left, rectangle.top);
        ::LineTo(dc, rectangle.right, rectangle.top);
        ::SelectObject(dc, ::GetStockObject(BLACK_PEN));
    }
    {
        UniquePen const bottom(::CreatePen(PS_SOLID, 1, bottomColor));
        ::SelectObject(dc, bottom.get());
        ::LineTo(dc, rectangle.right, lastRow);
        ::LineTo(dc, checkedSubtract(rectangle.left, 1), lastRow); // a line leaves out its end point
        ::SelectObject(dc, ::GetStockObject(BLACK_PEN));
        ::SelectObject(dc, ::GetStockObject(WHITE_BRUSH));
    }
    ::ReleaseDC(nullptr, dc); // part of the routine, though it does nothing to a memory DC
    return {};
}

void OffScreenDC::writeOpaque(long x, long y, RECT const& rectangle, std::wstring_view caption) const
{
    // Nothing shows in an empty rectangle, but some GDIs exchange the edges of one that is inside out and
    // would paint it.
    if (::IsRectEmpty(&rectangle))
        return;
    AnsiText const text(caption);
    ::ExtTextOutA(m_memoryDc.get(), x, y, ETO_OPAQUE | ETO_CLIPPED, &rectangle, text.data(), text.count(),
                  nullptr);
}

} // namespace quillet

// The pictures of a flat button and of an image button, made with bare GDI calls.
#include "bench/BarePainter.h"

#include "bench/Rounds.h"

#include <cmath>

namespace quillet::bench {

namespace {

constexpr COLORREF kFrame = RGB(128, 128, 128);
constexpr int kBorder = 1;
constexpr int kMargin = 4; // of the image inside the border, and of a caption without one
constexpr int kGap = 1;    // between image and caption

} // namespace

UniqueFont fontLike(HFONT font, bool underlined)
{
    LOGFONTW shape{};
    ::GetObjectW(font, sizeof shape, &shape);
    shape.lfUnderline = underlined;
    return UniqueFont(::CreateFontIndirectW(&shape));
}

SIZE sizeOf(HDC dc, HFONT font, std::string const& text)
{
    SelectScope const selected(dc, font);
    SIZE size{};
    ::GetTextExtentPoint32A(dc, text.c_str(), static_cast<int>(text.size()), &size);
    return size;
}

int centred(int space, int length) { return static_cast<int>(std::lrint(space / 2.0 - length / 2.0)); }

void fill(HDC dc, RECT const& rectangle, COLORREF color, int x, int y, std::string const& text)
{
    ::SetBkColor(dc, color);
    ::ExtTextOutA(dc, x, y, ETO_OPAQUE | ETO_CLIPPED, &rectangle, text.c_str(),
                  static_cast<UINT>(text.size()), nullptr);
}

BareCaption::BareCaption(HWND window, SIZE button, HFONT font, std::string const& text,
                         std::optional<int> left)
    : m_plain(fontLike(font, false)), m_underlined(fontLike(font, true)), m_key(text.substr(0, 1)),
      m_rest(text.substr(1))
{
    WindowDc const target(window);
    SIZE const size = sizeOf(target.get(), m_plain.get(), text);
    m_y = centred(button.cy, size.cy);
    m_keyAt = left.value_or(centred(button.cx, size.cx));
    m_restAt = m_keyAt + sizeOf(target.get(), m_plain.get(), m_key).cx;
}

void BareCaption::write(HDC dc, RECT rectangle, COLORREF back) const
{
    rectangle.left = m_keyAt;
    ::SelectObject(dc, m_underlined.get()); // only now: underlining costs even where there is no text
    fill(dc, rectangle, back, m_keyAt, m_y, m_key);
    ::SelectObject(dc, m_plain.get());
    rectangle.left = m_restAt;
    fill(dc, rectangle, back, m_restAt, m_y, m_rest);
}

BarePainter::BarePainter(HWND window, SIZE size, HFONT font, std::string const& caption)
    : m_window(window), m_width(size.cx), m_height(size.cy), m_caption(window, size, font, caption)
{}

void BarePainter::paint(BareLook const& look) const
{
    WindowDc const target(m_window);
    UniqueMemoryDc const dc(::CreateCompatibleDC(target.get()));
    UniqueBitmap const bitmap(::CreateCompatibleBitmap(target.get(), m_width, m_height));
    SelectScope const selectedBitmap(dc.get(), bitmap.get());
    // A window that only stands in for a button is told.
    compose(dc.get(), look, ::GetFocus() == m_window || look.focused);
    ::BitBlt(target.get(), 0, 0, m_width, m_height, dc.get(), 0, 0, SRCCOPY);
}

void BarePainter::paintStraight(BareLook const& look) const
{
    WindowDc const target(m_window);
    compose(target.get(), look, look.focused);
}

void BarePainter::compose(HDC dc, BareLook const& look, bool focused) const
{
    SelectScope const selectedFont(dc, m_caption.font());
    ::SetTextColor(dc, look.fore);
    int inset = focused ? 2 : 1;
    fill(dc, inside(0), look.border);
    fill(dc, inside(inset), look.back);
    if (focused) {
        inset += 2;
        fill(dc, inside(inset), kFrame);
        fill(dc, inside(inset + 1), look.back);
    }
    m_caption.write(dc, inside(inset + 1), look.back);
}

BareImagePainter::BareImagePainter(HWND window, SIZE size, HFONT font, std::string const& caption,
                                   BareImage const& image)
    : m_window(window), m_width(size.cx), m_height(size.cy), m_image(image),
      m_caption(window, size, font, caption, kBorder + kMargin + (image.size.cx ? image.size.cx + kGap : 0))
{}

void BareImagePainter::paint(BareImageLook const& look) const
{
    WindowDc const target(m_window);
    UniqueMemoryDc const dc(::CreateCompatibleDC(target.get()));
    UniqueBitmap const bitmap(::CreateCompatibleBitmap(target.get(), m_width, m_height));
    SelectScope const selectedBitmap(dc.get(), bitmap.get());
    SelectScope const selectedFont(dc.get(), m_caption.font());
    ::SetTextColor(dc.get(), look.fore);
    require(::GetFocus() != m_window, "the painted button has no focus, which would make its edges thicker");
    fill(dc.get(), {0, 0, m_width, m_height}, look.back);
    edges(dc.get(), look);
    m_caption.write(dc.get(), {0, kBorder + 1, m_width - kBorder - 1, m_height - kBorder - 1}, look.back);
    image(dc.get());
    ::BitBlt(target.get(), 0, 0, m_width, m_height, dc.get(), 0, 0, SRCCOPY);
}

void BareImagePainter::edges(HDC dc, BareImageLook const& look) const
{
    UniquePen const light(::CreatePen(PS_SOLID, 1, look.light));
    UniquePen const dark(::CreatePen(PS_SOLID, 1, look.dark));
    ::MoveToEx(dc, 0, m_height - 1, nullptr);
    {
        SelectScope const selected(dc, light.get());
        ::LineTo(dc, 0, 0);
        ::LineTo(dc, m_width - 1, 0);
    }
    SelectScope const selected(dc, dark.get());
    ::LineTo(dc, m_width - 1, m_height - 1);
    ::LineTo(dc, -1, m_height - 1);
}

void BareImagePainter::image(HDC dc) const
{
    int const left = kBorder + kMargin;
    int const top = centred(m_height, m_image.size.cy);
    if (m_image.icon)
        ::DrawIconEx(dc, left, top, m_image.icon, m_image.size.cx, m_image.size.cy, 0, nullptr, DI_NORMAL);
    if (!m_image.bitmap)
        return;
    UniqueMemoryDc const source(::CreateCompatibleDC(dc));
    SelectScope const selected(source.get(), m_image.bitmap);
    ::BitBlt(dc, left, top, m_image.size.cx, m_image.size.cy, source.get(), 0, 0, SRCCOPY);
}

} // namespace quillet::bench

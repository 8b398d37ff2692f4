// The picture of a button with light and dark edges and an image, made with bare GDI calls.
#include "bench/BareImagePainter.h"

#include "bench/BarePainter.h"
#include "bench/Rounds.h"

namespace quillet::bench {

namespace {

constexpr int kBorder = 1;
constexpr int kMargin = 4; // of the image inside the border, and of a caption without one
constexpr int kGap = 1;    // between image and caption

} // namespace

BareImagePainter::BareImagePainter(HWND window, SIZE size, HFONT font, std::string caption,
                                   BareImage const& image)
    : m_window(window), m_width(size.cx), m_height(size.cy), m_plain(fontLike(font, false)),
      m_underlined(fontLike(font, true)), m_key(caption.substr(0, 1)), m_rest(caption.substr(1)),
      m_image(image)
{
    WindowDc const target(window);
    m_y = centred(m_height, sizeOf(target.get(), m_plain.get(), caption).cy);
    m_keyAt = kBorder + kMargin + (image.size.cx ? image.size.cx + kGap : 0);
    m_restAt = m_keyAt + sizeOf(target.get(), m_plain.get(), m_key).cx;
}

void BareImagePainter::paint(BareImageLook const& look) const
{
    WindowDc const target(m_window);
    UniqueMemoryDc const dc(::CreateCompatibleDC(target.get()));
    UniqueBitmap const bitmap(::CreateCompatibleBitmap(target.get(), m_width, m_height));
    SelectScope const selectedBitmap(dc.get(), bitmap.get());
    SelectScope const selectedFont(dc.get(), m_plain.get());
    ::SetTextColor(dc.get(), look.fore);
    require(::GetFocus() != m_window, "the painted button has no focus, which would make its edges thicker");
    fill(dc.get(), {0, 0, m_width, m_height}, look.back);
    edges(dc.get(), look);
    RECT piece = {m_keyAt, kBorder + 1, m_width - kBorder - 1, m_height - kBorder - 1};
    ::SelectObject(dc.get(), m_underlined.get());
    fill(dc.get(), piece, look.back, m_keyAt, m_y, m_key);
    ::SelectObject(dc.get(), m_plain.get());
    piece.left = m_restAt;
    fill(dc.get(), piece, look.back, m_restAt, m_y, m_rest);
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

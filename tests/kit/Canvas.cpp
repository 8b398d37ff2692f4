// Pictures in memory that tests draw with plain GDI calls, none of them the library's, and read back as
// letters.
#include "kit/Canvas.h"

#include "kit/NotCopied.h"

#include <algorithm>
#include <iomanip>
#include <sstream>

namespace quillet::kit {

namespace {

RECT clientOf(HWND window)
{
    RECT client{};
    ::GetClientRect(window, &client);
    return client;
}

HBITMAP newPicture(int width, int height, std::uint32_t*& pixels)
{
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height; // the first row is the top one
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    HBITMAP const bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    pixels = static_cast<std::uint32_t*>(bits);
    return bitmap;
}

/// A pixel is stored as 0x00RRGGBB, a COLORREF is 0x00BBGGRR; the same exchange goes both ways.
constexpr std::uint32_t exchanged(std::uint32_t color)
{
    return (color & 0xFFU) << 16 | (color & 0xFF00U) | (color >> 16 & 0xFFU);
}

char letterOf(Letters const& letters, COLORREF color)
{
    auto const found = std::ranges::find(letters, color, &Letter::color);
    return found == letters.end() ? '?' : found->letter;
}

constexpr int kDifferencesNamed = 8;

struct Hex {
    COLORREF value;
};

std::ostream& operator<<(std::ostream& out, Hex color)
{
    return out << "0x" << std::hex << std::uppercase << std::setw(6) << std::setfill('0') << color.value
               << std::dec;
}

} // namespace

Canvas::Canvas(int width, int height)
    : m_width(width), m_height(height), m_dc(::CreateCompatibleDC(nullptr)),
      m_bitmap(newPicture(width, height, m_pixels)), m_selected(m_dc.get(), m_bitmap.get())
{}

Canvas::Canvas(int width, int height, COLORREF background) : Canvas(width, height) { fill(background); }

Canvas::Canvas(HWND window) : Canvas(clientOf(window).right, clientOf(window).bottom)
{
    readWindow(window, *this);
}

void Canvas::fill(COLORREF color) { fill(0, 0, m_width, m_height, color); }

void Canvas::fill(int left, int top, int right, int bottom, COLORREF color)
{
    ::GdiFlush();
    int const from = std::clamp(left, 0, m_width);
    int const to = std::clamp(right, from, m_width);
    for (int y = std::max(top, 0); y < std::min(bottom, m_height); ++y)
        std::fill(rowOf(y) + from, rowOf(y) + to, exchanged(color));
}

COLORREF Canvas::at(int x, int y) const
{
    if (x < 0 || y < 0 || x >= m_width || y >= m_height)
        return CLR_INVALID;
    ::GdiFlush();
    return exchanged(rowOf(y)[x]);
}

int Canvas::count(COLORREF color) const
{
    int found = 0;
    for (int y = 0; y < m_height; ++y)
        for (int x = 0; x < m_width; ++x)
            found += at(x, y) == color ? 1 : 0;
    return found;
}

std::string Canvas::picture(Letters const& letters) const
{
    return picture(letters, 0, 0, m_width, m_height);
}

std::string Canvas::picture(Letters const& letters, int left, int top, int right, int bottom) const
{
    std::string text;
    for (int y = top; y < bottom; ++y) {
        for (int x = left; x < right; ++x)
            text += letterOf(letters, at(x, y));
        text += '\n';
    }
    return text;
}

std::string differences(Canvas const& expected, Canvas const& actual)
{
    std::ostringstream text;
    if (expected.width() != actual.width() || expected.height() != actual.height()) {
        text << expected.width() << " x " << expected.height() << " was expected, found " << actual.width()
             << " x " << actual.height();
        return text.str();
    }
    int found = 0;
    for (int y = 0; y < expected.height(); ++y)
        for (int x = 0; x < expected.width(); ++x)
            if (expected.at(x, y) != actual.at(x, y) && found++ < kDifferencesNamed)
                text << '(' << x << ", " << y << "): " << Hex{expected.at(x, y)} << " was expected, found "
                     << Hex{actual.at(x, y)} << '\n';
    if (found)
        text << found << " pixels differ";
    return text.str();
}

namespace {

/// Limits drawing to a box for one scope.
class ClipScope : NotCopied {
public:
    ClipScope(HDC dc, RECT const& box) noexcept : m_dc(dc), m_state(::SaveDC(dc))
    {
        ::IntersectClipRect(dc, box.left, box.top, box.right, box.bottom);
    }
    ~ClipScope() { ::RestoreDC(m_dc, m_state); }

private:
    HDC m_dc;
    int m_state;
};

} // namespace

SIZE textSize(HFONT font, std::wstring const& text)
{
    WindowDc const screen(nullptr);
    SelectScope const selected(screen.get(), font);
    SIZE size{};
    ::GetTextExtentPoint32W(screen.get(), text.c_str(), static_cast<int>(text.size()), &size);
    if (text.empty()) { // an empty line is as high as any other
        TEXTMETRICW metrics;
        ::GetTextMetricsW(screen.get(), &metrics);
        size.cy = metrics.tmHeight;
    }
    return size;
}

std::wstring inCodePage(std::wstring const& text)
{
    char bytes[256];
    int const written = ::WideCharToMultiByte(CP_ACP, 0, text.data(), static_cast<int>(text.size()), bytes,
                                              sizeof bytes, nullptr, nullptr);
    wchar_t back[256];
    return {back, static_cast<size_t>(::MultiByteToWideChar(CP_ACP, 0, bytes, written, back, 256))};
}

void paintText(Canvas& canvas, RECT const& box, POINT at, std::wstring const& text, HFONT font, COLORREF fore,
               COLORREF back)
{
    canvas.fill(box.left, box.top, box.right, box.bottom, back);
    if (box.left >= box.right || box.top >= box.bottom)
        return;
    ClipScope const clip(canvas.dc(), box);
    SelectScope const selected(canvas.dc(), font);
    ::SetBkMode(canvas.dc(), TRANSPARENT);
    ::SetTextColor(canvas.dc(), fore);
    ::TextOutW(canvas.dc(), at.x, at.y, text.c_str(), static_cast<int>(text.size()));
}

void readWindow(HWND window, Canvas& canvas)
{
    WindowDc const dc(window);
    ::BitBlt(canvas.dc(), 0, 0, canvas.width(), canvas.height(), dc.get(), 0, 0, SRCCOPY);
}

} // namespace quillet::kit

// Makes the pictures that tests expect, with plain GDI calls and none of the library's code.
#include "kit/Painter.h"

namespace quillet::kit {

namespace {

/// Limits drawing to a box for one scope.
class ClipScope {
public:
    ClipScope(HDC dc, RECT const& box) noexcept : m_dc(dc), m_state(::SaveDC(dc))
    {
        ::IntersectClipRect(dc, box.left, box.top, box.right, box.bottom);
    }
    ~ClipScope() { ::RestoreDC(m_dc, m_state); }
    ClipScope(ClipScope const&) = delete;
    ClipScope& operator=(ClipScope const&) = delete;

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

// The window of a frame and of a placeholder: it draws itself and hands its children's messages to the form.
#include "gallery/intrinsic/BoxWindow.h"

#include "base/ComCall.h"
#include "base/Handles.h"
#include "gallery/host/Form.h"
#include "gallery/intrinsic/IntrinsicControl.h"
#include "gallery/intrinsic/PaintScope.h"

namespace quillet::gallery {

namespace {

constexpr wchar_t kBoxClass[] = L"QuilletGalleryBox";
constexpr int kCaptionLeft = 9;
constexpr int kCaptionGap = 2;

IntrinsicControl* controlOf(HWND window) noexcept
{
    return reinterpret_cast<IntrinsicControl*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
}

LRESULT handle(IntrinsicControl& control, HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_PAINT: {
        PaintScope const paint(window);
        control.paintBox(paint.dc());
        return 0;
    }
    case WM_ERASEBKGND:
        return 1; // painted whole
    case WM_PRINTCLIENT:
        control.paintBox(reinterpret_cast<HDC>(wParam));
        return 0;
    default: {
        std::optional<LRESULT> const answer = control.form().childMessage(message, wParam, lParam);
        return answer ? *answer : ::DefWindowProcW(window, message, wParam, lParam);
    }
    }
}

LRESULT CALLBACK boxProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    if (message == WM_NCCREATE) {
        auto const* const creation = reinterpret_cast<CREATESTRUCTW const*>(lParam);
        ::SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(creation->lpCreateParams));
    }
    if (message == WM_NCDESTROY)
        ::SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    IntrinsicControl* const control = controlOf(window);
    if (!control)
        return ::DefWindowProcW(window, message, wParam, lParam);
    return orFallback(LRESULT{0}, [&] { return handle(*control, window, message, wParam, lParam); });
}

void drawCaption(HDC dc, RECT area, BoxLook const& look, UINT format)
{
    ::SetBkMode(dc, TRANSPARENT);
    bool const isDisabled = look.state == BoxState::Disabled;
    ::SetTextColor(dc, isDisabled ? ::GetSysColor(COLOR_GRAYTEXT) : look.foreColor);
    ::DrawTextW(dc, look.caption.c_str(), static_cast<int>(look.caption.size()), &area, format);
}

} // namespace

void drawFrame(HDC dc, RECT area, BoxLook const& look)
{
    SelectScope const font(dc, look.font);
    ::FillRect(dc, &area, look.background);
    if (look.edge == BoxEdge::None)
        return;
    RECT caption = area;
    ::DrawTextW(dc, look.caption.c_str(), static_cast<int>(look.caption.size()), &caption,
                DT_SINGLELINE | DT_CALCRECT);
    RECT edge = area;
    edge.top += caption.bottom / 2;
    ::DrawEdge(dc, &edge, EDGE_ETCHED, BF_RECT);
    if (look.caption.empty())
        return;
    ::OffsetRect(&caption, kCaptionLeft, 0);
    RECT cleared = caption;
    ::InflateRect(&cleared, kCaptionGap, 0);
    ::FillRect(dc, &cleared, look.background);
    drawCaption(dc, caption, look, DT_SINGLELINE);
}

void drawPlaceholder(HDC dc, RECT area, BoxLook const& look)
{
    SelectScope const font(dc, look.font);
    ::FillRect(dc, &area, look.background);
    ::FrameRect(dc, &area, ::GetSysColorBrush(COLOR_GRAYTEXT));
    drawCaption(dc, area, look, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS | DT_NOPREFIX);
}

wchar_t const* boxWindowClass() noexcept
{
    WNDCLASSEXW known{};
    known.cbSize = sizeof known;
    if (::GetClassInfoExW(::GetModuleHandleW(nullptr), kBoxClass, &known))
        return kBoxClass;
    WNDCLASSEXW row{};
    row.cbSize = sizeof row;
    row.lpfnWndProc = boxProc;
    row.hInstance = ::GetModuleHandleW(nullptr);
    row.hCursor = ::LoadCursorA(nullptr, IDC_ARROW);
    row.lpszClassName = kBoxClass;
    ::RegisterClassExW(&row);
    return kBoxClass;
}

} // namespace quillet::gallery

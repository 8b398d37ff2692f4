// The window of a form: its style and place, its messages and its background.
#include "drawing/Colour.h"
#include "gallery/form/Fonts.h"
#include "gallery/form/FormValues.h"
#include "gallery/host/Form.h"
#include "gallery/intrinsic/IntrinsicControl.h"
#include "gallery/intrinsic/OwnWindow.h"
#include "gallery/intrinsic/PaintScope.h"

#include <algorithm>

namespace quillet::gallery {

namespace {

constexpr wchar_t kFormClass[] = L"QuilletGalleryForm";

constexpr long kSizable = 2;
constexpr long kStartManual = 0;
constexpr long kStartDefault = 3;
constexpr int kGridTwips = 120;
constexpr double kFormWidth = 4680;
constexpr double kFormHeight = 3195;
constexpr double kLargest = 100'000;

DWORD styleOf(FormValues const& values) noexcept
{
    bool const isSizable = values.whole(L"BorderStyle", kSizable) == kSizable;
    DWORD style = WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN | (isSizable ? WS_THICKFRAME : 0);
    style |= values.flag(L"MinButton", isSizable) ? WS_MINIMIZEBOX : 0;
    style |= values.flag(L"MaxButton", isSizable) ? WS_MAXIMIZEBOX : 0;
    return style;
}

int pixelsOf(FormValues const& values, std::wstring_view name, double fallback, int dotsPerInch)
{
    double const twips = std::clamp(values.number(name, fallback), -kLargest, kLargest);
    return ::MulDiv(static_cast<int>(twips), dotsPerInch, kTwipsPerInch);
}

/// Where the client area belongs on the screen; in the middle of its owner when that is asked for.
RECT clientPlace(FormValues const& values, Resolution const& resolution, HWND owner)
{
    RECT place{};
    int const width = std::max(pixelsOf(values, L"ClientWidth", kFormWidth, resolution.x), 0);
    int const height = std::max(pixelsOf(values, L"ClientHeight", kFormHeight, resolution.y), 0);
    if (values.whole(L"StartUpPosition", kStartManual) == kStartManual) {
        place.left = pixelsOf(values, L"ClientLeft", 0, resolution.x);
        place.top = pixelsOf(values, L"ClientTop", 0, resolution.y);
    } else {
        RECT around{0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)};
        if (owner)
            ::GetWindowRect(owner, &around);
        place.left = std::max((around.left + around.right - width) / 2, 0L);
        place.top = std::max((around.top + around.bottom - height) / 2, 0L);
    }
    place.right = place.left + width;
    place.bottom = place.top + height;
    return place;
}

} // namespace

void Form::makeWindow(FormNode const& node)
{
    FormValues const values(node);
    bool const isChild = m_options.parent != nullptr;
    DWORD const style = isChild ? WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS : styleOf(values);
    RECT place = clientPlace(values, m_resolution, m_options.owner);
    if (isChild)
        ::OffsetRect(&place, -place.left, -place.top);
    ::AdjustWindowRectEx(&place, style, FALSE, 0);
    bool const isPlacedBySystem = !isChild && values.whole(L"StartUpPosition", kStartManual) == kStartDefault;
    registerOwnWindow<Form>(kFormClass);
    m_window.reset(::CreateWindowExW(
        isChild ? WS_EX_CONTROLPARENT : 0, kFormClass, values.text(L"Caption", node.name).c_str(), style,
        isPlacedBySystem ? CW_USEDEFAULT : static_cast<int>(place.left),
        isPlacedBySystem ? CW_USEDEFAULT : static_cast<int>(place.top), place.right - place.left,
        place.bottom - place.top, isChild ? m_options.parent : m_options.owner, nullptr,
        ::GetModuleHandleW(nullptr), this));
    if (!m_window)
        throw FormError{m_options.file, node.line, L"the form's window cannot be made"};
}

void Form::show()
{
    ::ShowWindow(window(), SW_SHOWNORMAL);
    ::UpdateWindow(window());
    if (!::IsWindowVisible(window()))
        return; // the focus would make the hidden window that it stands in the active one
    m_focus.restore();
    m_focus.update();
}

std::wstring Form::caption() const
{
    std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(window())) + 1, L'\0');
    int const copied = ::GetWindowTextW(window(), text.data(), static_cast<int>(text.size()));
    text.resize(static_cast<std::size_t>(copied));
    return text;
}

void Form::setCaption(std::wstring const& caption) { ::SetWindowTextW(window(), caption.c_str()); }

void Form::setBackColor(OLE_COLOR color)
{
    m_backColor = color;
    ::InvalidateRect(window(), nullptr, TRUE);
}

LRESULT Form::handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_ERASEBKGND:
        eraseBackground(reinterpret_cast<HDC>(wParam));
        return 1;
    case WM_PAINT:
        paint();
        return 0;
    case WM_SETFOCUS:
        m_focus.restore();
        return 0;
    case WM_CLOSE:
        close();
        return 0;
    default: {
        std::optional<LRESULT> const answer = childMessage(message, wParam, lParam);
        return answer ? *answer : ::DefWindowProcW(window(), message, wParam, lParam);
    }
    }
}

std::optional<LRESULT> Form::childMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    bool const isColour = message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
    if (!isColour && (message != WM_COMMAND || lParam == 0))
        return std::nullopt;
    auto* const control = dynamic_cast<IntrinsicControl*>(controlOf(reinterpret_cast<HWND>(lParam)));
    if (!control)
        return std::nullopt;
    if (isColour)
        return reinterpret_cast<LRESULT>(control->colours(reinterpret_cast<HDC>(wParam)));
    control->notified(HIWORD(wParam));
    return 0;
}

void Form::paint()
{
    PaintScope const scope(window());
    for (auto const& control : m_controls)
        if (control->isShown() && control->parentWindow() == window())
            control->drawWithoutWindow(scope.dc());
}

void Form::eraseBackground(HDC dc) const
{
    RECT area{};
    ::GetClientRect(window(), &area);
    UniqueBrush const brush(::CreateSolidBrush(resolvedColour(m_backColor, 0)));
    ::FillRect(dc, &area, brush.get());
    if (!isDesign())
        return;
    int const step = std::max(m_resolution.pixelsX(kGridTwips), 2);
    for (int y = 0; y < area.bottom; y += step)
        for (int x = 0; x < area.right; x += step)
            ::SetPixelV(dc, x, y, ::GetSysColor(COLOR_BTNTEXT));
}

} // namespace quillet::gallery

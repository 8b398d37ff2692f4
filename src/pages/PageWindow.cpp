// The window of a property page: a child dialog whose controls are placed in dialog units.
#include "pages/PageWindow.h"

#include "base/ComCall.h"
#include "base/Module.h"
#include "base/RunTimeError.h"

namespace quillet {

namespace {

/// A dialog without controls of its own, in the font of the system's dialogs.
struct alignas(DWORD) Template {
    DLGTEMPLATE dialog = {DS_SETFONT | DS_FIXEDSYS | DS_CONTROL | WS_CHILD,
                          WS_EX_CONTROLPARENT,
                          0,
                          0,
                          0,
                          PageWindow::kPage.width,
                          PageWindow::kPage.height};
    WORD menu = 0;
    WORD windowClass = 0;
    WORD title = 0;
    WORD points = 8;
    wchar_t face[13] = L"MS Shell Dlg";
};

constexpr WORD kLabel = 0xFFFF; ///< the number of controls that nobody asks for

} // namespace

PageWindow::PageWindow(HWND parent, PageCommands& commands)
{
    Template const shape;
    m_window.reset(::CreateDialogIndirectParamW(moduleInstance(), &shape.dialog, parent,
                                                &PageWindow::procedure, reinterpret_cast<LPARAM>(&commands)));
    if (!m_window)
        throw lastError();
}

INT_PTR CALLBACK PageWindow::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    if (message == WM_INITDIALOG) {
        ::SetWindowLongPtrW(window, DWLP_USER, lParam);
        return FALSE; // the focus stays where the frame puts it
    }
    auto* const commands = reinterpret_cast<PageCommands*>(::GetWindowLongPtrW(window, DWLP_USER));
    if (!commands)
        return FALSE;
    if (message == WM_COMMAND)
        ignoringErrors([&] { commands->onCommand(LOWORD(wParam), HIWORD(wParam)); });
    else if (message == WM_DRAWITEM)
        ignoringErrors([&] { commands->onDraw(*reinterpret_cast<DRAWITEMSTRUCT const*>(lParam)); });
    else
        return FALSE;
    return TRUE;
}

HWND PageWindow::add(wchar_t const* windowClass, wchar_t const* text, DWORD style, WORD id,
                     Units const& place)
{
    RECT const at = pixels(place);
    HWND const made =
        ::CreateWindowExW(0, windowClass, text, WS_CHILD | WS_VISIBLE | style, at.left, at.top,
                          at.right - at.left, at.bottom - at.top, handle(),
                          reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), moduleInstance(), nullptr);
    if (!made)
        throw lastError();
    ::SendMessageW(made, WM_SETFONT, static_cast<WPARAM>(::SendMessageW(handle(), WM_GETFONT, 0, 0)), FALSE);
    return made;
}

HWND PageWindow::addLabel(wchar_t const* text, Units const& place)
{
    return add(L"STATIC", text, SS_LEFT | SS_NOPREFIX, kLabel, place);
}

RECT PageWindow::pixels(Units const& units) const noexcept
{
    RECT place = {units.x, units.y, units.x + units.width, units.y + units.height};
    ::MapDialogRect(handle(), &place);
    return place;
}

} // namespace quillet

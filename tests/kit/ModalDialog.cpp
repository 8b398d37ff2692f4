// A modal dialog of the system's, for programs that open one in the middle of an event.
#include "kit/ModalDialog.h"

namespace quillet::kit {

namespace {

constexpr UINT kRun = WM_APP;

using Body = std::function<void(HWND dialog)>;

struct Opening {
    POINT at;
    Body const& body;
};

INT_PTR CALLBACK procedure(HWND dialog, UINT message, WPARAM, LPARAM lParam)
{
    switch (message) {
    case WM_INITDIALOG: {
        POINT const at = reinterpret_cast<Opening const*>(lParam)->at;
        ::SetWindowPos(dialog, HWND_TOPMOST, at.x, at.y, 120, 80, 0);
        ::ReleaseCapture(); // not every system's dialogs do it themselves
        ::PostMessageA(dialog, kRun, 0, lParam);
        return TRUE;
    }
    case kRun:
        reinterpret_cast<Opening const*>(lParam)->body(dialog);
        ::EndDialog(dialog, 0);
        return TRUE;
    default:
        return FALSE;
    }
}

} // namespace

void runDialog(HWND owner, POINT at, Body const& body)
{
    struct {
        DLGTEMPLATE head;
        WORD menu, windowClass, title;
    } const form = {{WS_POPUP | WS_VISIBLE, 0, 0, 0, 0, 60, 40}, 0, 0, 0};
    ::ClientToScreen(owner, &at);
    Opening const opening = {at, body};
    ::DialogBoxIndirectParamA(nullptr, &form.head, owner, &procedure, reinterpret_cast<LPARAM>(&opening));
}

} // namespace quillet::kit

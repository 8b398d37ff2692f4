// The tests' help viewer: a library with the one function of the system's that pages call.
#include "FakeViewer.h"

namespace {

quillet::pages::ViewerCall s_last;

} // namespace

extern "C" {

__declspec(dllexport) quillet::pages::ViewerCall& lastCall() { return s_last; }

__declspec(dllexport) HWND WINAPI HtmlHelpW(HWND caller, LPCWSTR file, UINT command, DWORD_PTR topic)
{
    s_last.caller = caller;
    ::lstrcpynW(s_last.file, file, MAX_PATH);
    s_last.command = command;
    s_last.topic = topic;
    return s_last.fails ? nullptr : ::GetDesktopWindow();
}
}

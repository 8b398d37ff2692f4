// The system's viewer of help files. Its library is loaded when help is asked for the first time.
#include "pages/HelpViewer.h"

#include "base/Handles.h"
#include "base/HelpFile.h"

#include <htmlhelp.h>

namespace quillet {

bool showHelpTopic(HWND caller, DWORD topic)
{
    // Never freed: the window that it opens runs in it.
    HMODULE const viewer = ::LoadLibraryW(L"hhctrl.ocx");
    auto const show = functionOf<HWND WINAPI(HWND, LPCWSTR, UINT, DWORD_PTR)>(viewer, "HtmlHelpW");
    return show && show(caller, helpFilePath().c_str(), HH_HELP_CONTEXT, topic);
}

} // namespace quillet

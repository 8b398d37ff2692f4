// The about box.
#include "ShownButton.h"
#include "base/Version.h"

namespace quillet::flat {
namespace {

int s_dialogsSeen = 0;
std::wstring s_dialogsText; ///< all texts in it

BOOL CALLBACK readText(HWND window, LPARAM)
{
    wchar_t text[256] = {};
    ::GetWindowTextW(window, text, 256);
    s_dialogsText += text;
    return TRUE;
}

/// Windows of this thread that can be closed like a message: visible dialogs.
BOOL CALLBACK closeDialog(HWND window, LPARAM)
{
    wchar_t name[16] = {};
    ::GetClassNameW(window, name, 16);
    if (std::wstring(name) != L"#32770" || !::IsWindowVisible(window))
        return TRUE;
    ++s_dialogsSeen;
    ::EnumChildWindows(window, readText, 0);
    ::PostMessageW(window, WM_CLOSE, 0, 0);
    return FALSE;
}

VOID CALLBACK lookForDialog(HWND, UINT, UINT_PTR timer, DWORD)
{
    ::EnumThreadWindows(::GetCurrentThreadId(), closeDialog, 0);
    if (s_dialogsSeen)
        ::KillTimer(nullptr, timer);
}

TEST_F(FlatTest, theAboutBoxShowsTheVersionAndTheCallComesBackWhenItIsClosed)
{
    kit::FakeForm form;
    ShownButton button(library(), form);
    s_dialogsSeen = 0;
    s_dialogsText.clear();
    constexpr UINT kEvery = 20; // milliseconds
    UINT_PTR const timer = ::SetTimer(nullptr, 0, kEvery, lookForDialog);
    EXPECT_EQ(button->ShowAbout(), S_OK);
    ::KillTimer(nullptr, timer);
    EXPECT_EQ(s_dialogsSeen, 1);
    EXPECT_NE(s_dialogsText.find(L"Version " QV_VERSION), std::wstring::npos) << s_dialogsText;
    EXPECT_TRUE(::IsWindowEnabled(form.window()));
}

} // namespace
} // namespace quillet::flat

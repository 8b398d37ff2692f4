// The about box.
#include "ShownButton.h"

namespace quillet::flat {
namespace {

/// Windows of this thread that can be closed like a message: visible dialogs.
BOOL CALLBACK closeDialog(HWND window, LPARAM found)
{
    wchar_t name[16] = {};
    ::GetClassNameW(window, name, 16);
    if (std::wstring(name) != L"#32770" || !::IsWindowVisible(window))
        return TRUE;
    ++*reinterpret_cast<int*>(found);
    ::PostMessageW(window, WM_CLOSE, 0, 0);
    return FALSE;
}

int s_dialogsSeen = 0;

VOID CALLBACK lookForDialog(HWND, UINT, UINT_PTR timer, DWORD)
{
    ::EnumThreadWindows(::GetCurrentThreadId(), closeDialog, reinterpret_cast<LPARAM>(&s_dialogsSeen));
    if (s_dialogsSeen)
        ::KillTimer(nullptr, timer);
}

TEST_F(FlatTest, theAboutBoxShowsAndTheCallComesBackWhenItIsClosed)
{
    kit::FakeForm form;
    ShownButton button(library(), form);
    s_dialogsSeen = 0;
    constexpr UINT kEvery = 20; // milliseconds
    UINT_PTR const timer = ::SetTimer(nullptr, 0, kEvery, lookForDialog);
    EXPECT_EQ(button->ShowAbout(), S_OK);
    ::KillTimer(nullptr, timer);
    EXPECT_EQ(s_dialogsSeen, 1);
    EXPECT_TRUE(::IsWindowEnabled(form.window()));
}

} // namespace
} // namespace quillet::flat

// What every hostile case begins and ends with: nothing of the component may be left behind.
#include "HostileTest.h"

#include "kit/Input.h"
#include "kit/Pump.h"

#include <iterator>

namespace quillet::hostile {

namespace {

constexpr UINT kLook = 20; // milliseconds

BOOL CALLBACK closeDialog(HWND window, LPARAM)
{
    char name[16] = {};
    ::GetClassNameA(window, name, static_cast<int>(std::size(name)));
    if (std::string(name) == "#32770" && ::IsWindowVisible(window)) {
        ::PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
        ::PostMessageW(window, WM_COMMAND, IDOK, 0);
        ::PostMessageW(window, WM_CLOSE, 0, 0);
    }
    return TRUE;
}

void CALLBACK look(HWND, UINT, UINT_PTR, DWORD)
{
    ::EnumThreadWindows(::GetCurrentThreadId(), closeDialog, 0);
}

bool isOwn(std::string const& name)
{
    return name.starts_with("QuilletSurface") || name.starts_with("QuilletButton");
}

BOOL CALLBACK collect(HWND window, LPARAM names)
{
    char name[64] = {};
    ::GetClassNameA(window, name, static_cast<int>(std::size(name)));
    if (isOwn(name))
        reinterpret_cast<std::vector<std::string>*>(names)->emplace_back(name);
    return TRUE;
}

BOOL CALLBACK collectAll(HWND window, LPARAM names)
{
    ::EnumChildWindows(window, collect, names);
    return collect(window, names);
}

} // namespace

DialogCloser::DialogCloser() : m_timer(::SetTimer(nullptr, 0, kLook, look)) {}

DialogCloser::~DialogCloser() { ::KillTimer(nullptr, m_timer); }

std::vector<std::string> ownWindows()
{
    std::vector<std::string> names;
    ::EnumThreadWindows(::GetCurrentThreadId(), collectAll, reinterpret_cast<LPARAM>(&names));
    return names;
}

void HostileTest::SetUp()
{
    ControlTest::SetUp();
    Journal::begin("a new case");
}

void HostileTest::TearDown()
{
    ::ReleaseCapture();
    kit::moveCursorAway();
    Journal::end();
}

void HostileTest::expectNothingLeft()
{
    EXPECT_EQ(library().canUnloadNow(), S_OK) << "objects of the component are alive after\n"
                                              << Journal::text();
    EXPECT_THAT(ownWindows(), testing::IsEmpty()) << "windows of the component are left after\n"
                                                  << Journal::text();
}

} // namespace quillet::hostile

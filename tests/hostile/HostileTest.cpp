// What every hostile case begins and ends with, and another party's eyes on a control's windows.
#include "HostileTest.h"

#include "Life.h"
#include "kit/Input.h"
#include "kit/Pump.h"

#include <iterator>
#include <map>
#include <string>

namespace quillet::hostile {

namespace {

/// Message boxes and property frames that a control opens.
void closeDialog(HWND dialog)
{
    ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    ::PostMessageW(dialog, WM_COMMAND, IDOK, 0);
    ::PostMessageW(dialog, WM_CLOSE, 0, 0);
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

std::vector<std::string> ownWindows()
{
    std::vector<std::string> names;
    ::EnumThreadWindows(::GetCurrentThreadId(), collectAll, reinterpret_cast<LPARAM>(&names));
    return names;
}

HostileTest::HostileTest() : m_closer(closeDialog) {}

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

void HostileTest::live(ControlKind const& kind, std::string const& title,
                       std::function<void(Life&)> const& prepare)
{
    Journal::begin(std::string(kind.name) + ": " + title);
    {
        Life life(kind);
        prepare(life);
        life.live();
    }
    expectNothingLeft();
}

void HostileTest::expectNothingLeft()
{
    EXPECT_EQ(library().canUnloadNow(), S_OK) << "objects of the component are alive after\n"
                                              << Journal::text();
    EXPECT_THAT(ownWindows(), testing::IsEmpty()) << "windows of the component are left after\n"
                                                  << Journal::text();
}

namespace {

struct Watch {
    WNDPROC previous;
    Life* life;
};

/// By the 32 bits of a handle that count: after some 32,000 windows, systems differ in the others from call
/// to call.
std::map<LONG, Watch>& watches()
{
    static std::map<LONG, Watch> all;
    return all;
}

LRESULT CALLBACK watching(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto const found = watches().find(HandleToLong(window));
    if (found == watches().end())
        return ::DefWindowProcA(window, message, wParam, lParam);
    Watch const watch = found->second;
    std::string const number = '(' + std::to_string(message) + ')';
    watch.life->noted("Before" + number);
    LRESULT const result = ::CallWindowProcA(watch.previous, window, message, wParam, lParam);
    watch.life->noted("After" + number);
    return result;
}

} // namespace

HWND surfaceIn(HWND form)
{
    for (HWND child = ::GetWindow(form, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        char name[32] = {};
        ::GetClassNameA(child, name, static_cast<int>(std::size(name)));
        if (std::string(name).starts_with("QuilletSurface"))
            return child;
    }
    return nullptr;
}

void watchMessages(HWND window, Life& life)
{
    if (!window || watches().contains(HandleToLong(window)))
        return;
    auto const previous = ::GetWindowLongPtrA(window, GWLP_WNDPROC);
    watches()[HandleToLong(window)] = {reinterpret_cast<WNDPROC>(previous), &life};
    ::SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&watching));
}

void forgetWatches()
{
    std::erase_if(watches(),
                  [](auto const& each) { return !::IsWindow(static_cast<HWND>(LongToHandle(each.first))); });
}

} // namespace quillet::hostile

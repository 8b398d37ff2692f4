// Uses a sample as a person would, with the real mouse:
//     user PROGRAM click TITLE   clicks the first control of its window and waits until the window has the
//     title; closes it user PROGRAM read TEXT     waits for a message box that has the text; confirms it, and
//     the program must fail
// Says in one line what went wrong.
#include "kit/Input.h"
#include "kit/Pump.h"

#include <cstdio>
#include <stdexcept>
#include <string>

namespace {

using quillet::kit::pumpUntil;

constexpr DWORD kPatience = 60'000; // milliseconds: a first program in a new prefix starts slowly

void expect(bool happened, char const* what)
{
    if (!happened)
        throw std::runtime_error(what);
}

/// A program that ends with this object, if it did not end before.
class Program {
public:
    explicit Program(std::wstring commandLine)
    {
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        expect(::CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                                &startup, &m_process),
               "the program does not start");
        ::CloseHandle(m_process.hThread);
    }
    ~Program()
    {
        ::TerminateProcess(m_process.hProcess, 2);
        ::CloseHandle(m_process.hProcess);
    }
    Program(Program const&) = delete;
    Program& operator=(Program const&) = delete;

    DWORD id() const { return m_process.dwProcessId; }
    DWORD result() const
    {
        DWORD code = 0;
        ::GetExitCodeProcess(m_process.hProcess, &code);
        return code;
    }
    bool isOver() const { return result() != STILL_ACTIVE; }

private:
    PROCESS_INFORMATION m_process{};
};

std::wstring classOf(HWND window)
{
    wchar_t name[64];
    return {name, static_cast<std::size_t>(::GetClassNameW(window, name, 64))};
}

std::wstring titleOf(HWND window)
{
    wchar_t text[512];
    return {text, static_cast<std::size_t>(::GetWindowTextW(window, text, 512))};
}

/// A visible window of the program that is a message box, or one that is none; null for none yet.
HWND windowOf(Program const& program, bool messageBox)
{
    for (HWND each = ::GetTopWindow(nullptr); each; each = ::GetWindow(each, GW_HWNDNEXT)) {
        DWORD owner = 0;
        ::GetWindowThreadProcessId(each, &owner);
        if (owner == program.id() && ::IsWindowVisible(each) && (classOf(each) == L"#32770") == messageBox)
            return each;
    }
    return nullptr;
}

/// The window of the first control that a host window of the system holds.
HWND firstControl(HWND window)
{
    HWND const host = ::FindWindowExW(window, nullptr, L"AtlAxWin", nullptr);
    return host ? ::GetWindow(host, GW_CHILD) : nullptr;
}

void click(Program const& program, std::wstring const& title)
{
    HWND window = nullptr;
    HWND control = nullptr;
    expect(pumpUntil(
               [&] {
                   window = windowOf(program, false);
                   control = window ? firstControl(window) : nullptr;
                   return (control && ::IsWindowVisible(control)) || program.isOver();
               },
               kPatience),
           "no window with a control comes");
    expect(control != nullptr, "the program ends instead of showing a control");
    RECT place;
    ::GetClientRect(control, &place);
    expect(quillet::kit::moveCursorTo(control, place.right / 2, place.bottom / 2),
           "the mouse does not get there");
    quillet::kit::press(quillet::kit::MouseButton::Left);
    quillet::kit::release(quillet::kit::MouseButton::Left);
    expect(pumpUntil([&] { return titleOf(window) == title; }, kPatience), "the click is not heard");
    ::PostMessageW(window, WM_CLOSE, 0, 0);
    expect(pumpUntil([&] { return program.isOver(); }, kPatience), "the program does not end");
    expect(program.result() == 0, "the program fails at its end");
}

bool hasText(HWND box, std::wstring const& text)
{
    for (HWND each = ::GetWindow(box, GW_CHILD); each; each = ::GetWindow(each, GW_HWNDNEXT))
        if (titleOf(each).find(text) != std::wstring::npos)
            return true;
    return false;
}

void read(Program const& program, std::wstring const& text)
{
    HWND box = nullptr;
    expect(pumpUntil(
               [&] {
                   box = windowOf(program, true);
                   return (box && hasText(box, text)) || program.isOver();
               },
               kPatience),
           "no message box with the text comes");
    ::PostMessageW(box, WM_COMMAND, IDOK, 0);
    expect(pumpUntil([&] { return program.isOver(); }, kPatience), "the program does not end");
    expect(program.result() != 0, "the program does not tell its caller that it failed");
}

} // namespace

int wmain(int count, wchar_t* arguments[])
{
    if (count != 4) {
        std::fputs("usage: user PROGRAM click|read TEXT\n", stderr);
        return 2;
    }
    try {
        Program const program(arguments[1]);
        if (arguments[2] == std::wstring(L"click"))
            click(program, arguments[3]);
        else
            read(program, arguments[3]);
        return 0;
    } catch (std::exception const& trouble) {
        std::fprintf(stderr, "user: %s\n", trouble.what());
        return 1;
    }
}

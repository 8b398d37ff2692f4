// What a run is doing: told when it fails, crashes or hangs.
#include "Journal.h"

#include "kit/NotCopied.h"

#include <windows.h>

#include <csignal>
#include <cstdint>
#include <cstdio>
#include <vector>

namespace quillet::hostile {

namespace {

constexpr ULONGLONG kLimit = 60'000; // milliseconds for one run, on a machine that is busy elsewhere
constexpr UINT kFailed = 3;

class Lock : kit::NotCopied {
public:
    explicit Lock(SRWLOCK& lock) noexcept : m_lock(lock) { ::AcquireSRWLockExclusive(&m_lock); }
    ~Lock() { ::ReleaseSRWLockExclusive(&m_lock); }

private:
    SRWLOCK& m_lock;
};

struct State {
    SRWLOCK mutex = SRWLOCK_INIT;
    std::string title;
    std::vector<std::string> steps;
    ULONGLONG deadline = 0; ///< 0 for none
    int runs = 0;
};

State& state()
{
    static State* const only = new State; // outlives everything that may still fail
    return *only;
}

[[noreturn]] void fail(char const* how)
{
    std::printf("\nhostile: %s in\n%s\n", how, Journal::text().c_str());
    std::fflush(stdout);
    ::TerminateProcess(::GetCurrentProcess(), kFailed);
    for (;;)
        ::Sleep(INFINITE);
}

/// Where in the component the calling thread has been: what looks like a return address on its stack.
void printStack(std::uintptr_t stackPointer)
{
    auto const module = reinterpret_cast<std::uintptr_t>(::GetModuleHandleW(L"quilbt.ocx"));
    if (!module)
        return;
    auto const* const header = reinterpret_cast<IMAGE_DOS_HEADER const*>(module);
    auto const* const image = reinterpret_cast<IMAGE_NT_HEADERS const*>(module + header->e_lfanew);
    std::printf("hostile: quilbt.ocx at %p; on the stack:", reinterpret_cast<void*>(module));
    MEMORY_BASIC_INFORMATION region{};
    ::VirtualQuery(reinterpret_cast<void*>(stackPointer), &region, sizeof(region));
    auto const end = reinterpret_cast<std::uintptr_t>(region.BaseAddress) + region.RegionSize;
    int shown = 0;
    for (auto at = stackPointer; at + sizeof(at) <= end && shown < 40; at += sizeof(at)) {
        auto const word = *reinterpret_cast<std::uintptr_t const*>(at);
        if (word < module || word >= module + image->OptionalHeader.SizeOfImage)
            continue;
        std::printf(" +%lx", static_cast<unsigned long>(word - module));
        ++shown;
    }
    std::printf("\n");
}

LONG CALLBACK crashed(EXCEPTION_POINTERS* what)
{
    auto const& context = *what->ContextRecord;
#ifdef _WIN64
    auto const stackPointer = static_cast<std::uintptr_t>(context.Rsp);
#else
    auto const stackPointer = static_cast<std::uintptr_t>(context.Esp);
#endif
    char how[80];
    std::snprintf(how, sizeof(how), "exception %08lx at %p", what->ExceptionRecord->ExceptionCode,
                  what->ExceptionRecord->ExceptionAddress);
    printStack(stackPointer);
    fail(how);
}

void aborted(int) { fail("abort"); }

DWORD WINAPI waitForHangs(void*)
{
    for (;;) {
        ::Sleep(500);
        State& own = state();
        ULONGLONG deadline = 0;
        {
            Lock const lock(own.mutex);
            deadline = own.deadline;
        }
        if (deadline && ::GetTickCount64() > deadline && !::IsDebuggerPresent())
            fail("no end");
    }
}

} // namespace

void Journal::begin(std::string const& title)
{
    Lock const lock(state().mutex);
    ++state().runs;
    state().title = title;
    state().steps.clear();
    state().deadline = ::GetTickCount64() + kLimit;
}

void Journal::step(std::string const& text)
{
    Lock const lock(state().mutex);
    state().steps.push_back(text);
}

void Journal::end()
{
    Lock const lock(state().mutex);
    state().deadline = 0;
}

int Journal::runs() { return state().runs; }

std::string Journal::text()
{
    Lock const lock(state().mutex);
    std::string all = state().title;
    for (std::string const& step : state().steps)
        all += "\n    " + step;
    return all;
}

void Journal::watch()
{
    ::SetUnhandledExceptionFilter(crashed);
    std::signal(SIGABRT, aborted);
    ::CloseHandle(::CreateThread(nullptr, 0, waitForHangs, nullptr, 0, nullptr));
}

} // namespace quillet::hostile

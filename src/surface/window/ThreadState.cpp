// What exists once per user-interface thread, kept in a slot of Windows' own: a library that may be
// unloaded while its threads live on cannot leave that to the language's thread-local storage.
#include "surface/window/ThreadState.h"

#include <new>

namespace quillet {

namespace {

DWORD g_slot = TLS_OUT_OF_INDEXES;

} // namespace

ThreadState& threadState()
{
    if (void* const existing = ::TlsGetValue(g_slot))
        return *static_cast<ThreadState*>(existing);
    auto* const made =
        static_cast<ThreadState*>(::HeapAlloc(::GetProcessHeap(), HEAP_ZERO_MEMORY, sizeof(ThreadState)));
    if (!made || !::TlsSetValue(g_slot, made)) {
        ::HeapFree(::GetProcessHeap(), 0, made);
        throw std::bad_alloc();
    }
    return *made;
}

bool attachThreadStates() noexcept
{
    g_slot = ::TlsAlloc();
    return g_slot != TLS_OUT_OF_INDEXES;
}

void detachThreadState() noexcept
{
    ::HeapFree(::GetProcessHeap(), 0, ::TlsGetValue(g_slot));
    ::TlsSetValue(g_slot, nullptr);
}

void detachThreadStates() noexcept
{
    detachThreadState();
    ::TlsFree(g_slot);
    g_slot = TLS_OUT_OF_INDEXES;
}

} // namespace quillet

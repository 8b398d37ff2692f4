// The functions that a loaded image imports, where a test may stand in for one.
#pragma once

#include <windows.h>

namespace quillet {

inline void exchangeImport(void** slot, void* address)
{
    DWORD old = 0;
    ::VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &old);
    *slot = address;
    ::VirtualProtect(slot, sizeof *slot, old, &old);
}

/// Calls visit(name, slot) for every function that the image imports by name.
template <class Visit> void forEachImport(HMODULE caller, Visit visit)
{
    auto* const image = reinterpret_cast<BYTE*>(caller);
    auto const* const dos = reinterpret_cast<IMAGE_DOS_HEADER const*>(image);
    auto const* const nt = reinterpret_cast<IMAGE_NT_HEADERS const*>(image + dos->e_lfanew);
    auto const& imports = nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    auto const* library = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR const*>(image + imports.VirtualAddress);
    for (; library->Name; ++library) {
        auto const* name = reinterpret_cast<IMAGE_THUNK_DATA const*>(image + library->OriginalFirstThunk);
        auto* slot = reinterpret_cast<void**>(image + library->FirstThunk);
        for (; name->u1.AddressOfData; ++name, ++slot)
            if (!IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal))
                visit(reinterpret_cast<IMAGE_IMPORT_BY_NAME const*>(image + name->u1.AddressOfData)->Name,
                      slot);
    }
}

} // namespace quillet

// The size of the component's file, and how long it takes to load.
#include "bench/Bench.h"
#include "bench/Rounds.h"

#include <windows.h>

namespace quillet::bench {

namespace {

/// A copy of the component under another name, which nobody has in memory.
class Copy {
public:
    Copy()
    {
        wchar_t folder[MAX_PATH];
        ::GetTempPathW(MAX_PATH, folder);
        m_path = std::wstring(folder) + L"quilbt-copy.ocx";
        require(::CopyFileW(kit::Library::path().c_str(), m_path.c_str(), FALSE) != FALSE,
                "quilbt.ocx cannot be copied");
    }
    ~Copy() { ::DeleteFileW(m_path.c_str()); }
    Copy(Copy const&) = delete;
    Copy& operator=(Copy const&) = delete;

    wchar_t const* path() const noexcept { return m_path.c_str(); }

private:
    std::wstring m_path;
};

void loadAndUnload(wchar_t const* path)
{
    HMODULE const module = ::LoadLibraryW(path);
    require(module != nullptr, "a library cannot be loaded");
    ::FreeLibrary(module);
}

} // namespace

Rows measureSize(kit::Library const&, Effort effort)
{
    WIN32_FILE_ATTRIBUTE_DATA file{};
    require(::GetFileAttributesExW(kit::Library::path().c_str(), GetFileExInfoStandard, &file) != FALSE,
            "quilbt.ocx cannot be found");
    Copy const copy;
    Comparison const loading = compare(
        effort == Effort::Full ? 51 : 3, 10, [&] { loadAndUnload(copy.path()); },
        [] { loadAndUnload(L"msimg32.dll"); });
    return {{"size of quilbt.ocx", std::to_string((file.nFileSizeLow + 512) / 1024) + " KiB", "–", "–", "–"},
            rowOf("quilbt.ocx loaded and unloaded", loading, "–")};
}

} // namespace quillet::bench

// The size of the component's file, and how long it takes to load.
#include "bench/Bench.h"
#include "bench/Rounds.h"

#include <windows.h>

namespace quillet::bench {

namespace {

/// A copy of a library under another name, which nobody has in memory.
class Copy {
public:
    explicit Copy(std::wstring const& original, wchar_t const* name)
    {
        wchar_t folder[MAX_PATH];
        ::GetTempPathW(MAX_PATH, folder);
        m_path = std::wstring(folder) + name;
        require(::CopyFileW(original.c_str(), m_path.c_str(), FALSE) != FALSE, "a library cannot be copied");
    }
    ~Copy() { ::DeleteFileW(m_path.c_str()); }
    Copy(Copy const&) = delete;
    Copy& operator=(Copy const&) = delete;

    void loadAndUnload() const
    {
        HMODULE const module = ::LoadLibraryW(m_path.c_str());
        require(module != nullptr, "a library cannot be loaded");
        ::FreeLibrary(module);
    }

private:
    std::wstring m_path;
};

/// A control of the system's that imports from the same libraries: common controls, graphics, windows,
/// components and automation.
std::wstring systemControl()
{
    wchar_t folder[MAX_PATH];
    ::GetSystemDirectoryW(folder, MAX_PATH);
    return std::wstring(folder) + L"\\hhctrl.ocx";
}

} // namespace

Rows measureSize(kit::Library const&, Effort effort)
{
    WIN32_FILE_ATTRIBUTE_DATA file{};
    require(::GetFileAttributesExW(kit::Library::path().c_str(), GetFileExInfoStandard, &file) != FALSE,
            "quilbt.ocx cannot be found");
    Copy const ours(kit::Library::path(), L"quilbt-copy.ocx");
    Copy const theirs(systemControl(), L"hhctrl-copy.ocx");
    Comparison const loading = compare(
        effort, 1, [&] { ours.loadAndUnload(); }, [&] { theirs.loadAndUnload(); });
    return {{"size of quilbt.ocx", {file.nFileSizeLow / 1000.0, kNone, kNone}, Unit::Kilobytes},
            {"quilbt.ocx loaded and unloaded", loading}};
}

} // namespace quillet::bench

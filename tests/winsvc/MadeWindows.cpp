// What this program asks Windows for when it makes windows with the ANSI function.
#include "MadeWindows.h"

#include "drawing/ImportTable.h"

#include <commctrl.h>

#include <string_view>

namespace quillet::winsvc {

namespace {

MadeWindows* g_made = nullptr; // the one that lives

decltype(&::InitCommonControls) g_initCommonControls = nullptr;
decltype(&::CreateWindowExA) g_createWindowExA = nullptr;

void WINAPI initCommonControls()
{
    g_made->controlsInitialised = true;
    g_initCommonControls();
}

HWND WINAPI createWindowExA(DWORD extendedStyle, LPCSTR className, LPCSTR title, DWORD style, int x, int y,
                            int width, int height, HWND parent, HMENU menu, HINSTANCE instance, LPVOID data)
{
    std::string const name = IS_INTRESOURCE(className) ? "an atom" : className;
    g_made->windows.push_back({g_made->controlsInitialised,
                               extendedStyle,
                               name,
                               title != nullptr,
                               style,
                               {x, y, width, height},
                               parent,
                               menu,
                               instance,
                               data});
    if (g_made->failing)
        return nullptr;
    return g_createWindowExA(extendedStyle, className, title, style, x, y, width, height, parent, menu,
                             instance, data);
}

/// A function by its name among the imports: what stands for it, and where the original is kept.
struct Row {
    std::string_view name;
    void* stand;
    void** original;
};

Row const kRows[] = {
    {"InitCommonControls", reinterpret_cast<void*>(&initCommonControls),
     reinterpret_cast<void**>(&g_initCommonControls)},
    {"CreateWindowExA", reinterpret_cast<void*>(&createWindowExA),
     reinterpret_cast<void**>(&g_createWindowExA)},
};

} // namespace

MadeWindows::MadeWindows()
{
    g_made = this;
    forEachImport(::GetModuleHandleW(nullptr), [](char const* name, void** slot) {
        for (Row const& row : kRows)
            if (row.name == name) {
                *row.original = *slot;
                exchangeImport(slot, row.stand);
            }
    });
}

MadeWindows::~MadeWindows()
{
    forEachImport(::GetModuleHandleW(nullptr), [](char const*, void** slot) {
        for (Row const& row : kRows)
            if (*slot == row.stand)
                exchangeImport(slot, *row.original);
    });
    g_made = nullptr;
}

} // namespace quillet::winsvc

// What this program asks Windows for when it makes windows with the ANSI function.
#pragma once

#include "drawing/ImportTable.h"
#include "kit/NotCopied.h"

#include <commctrl.h>
#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

namespace quillet::winsvc {

/// The arguments of one CreateWindowExA.
struct MadeWindow {
    bool controlsInitialised; ///< whether InitCommonControls had been called
    DWORD extendedStyle;
    std::string className;
    bool hasTitle;
    DWORD style;
    int place[4]; ///< x, y, width, height
    HWND parent;
    HMENU menu;
    HINSTANCE instance;
    void* data;
};

/// While it lives, notes the windows that this program itself makes. One at a time.
class MadeWindows : kit::NotCopied {
public:
    MadeWindows()
    {
        s_present = this;
        forEachImport(::GetModuleHandleW(nullptr), [](char const* name, void** slot) {
            for (Row const& row : kRows)
                if (row.name == name) {
                    *row.original = *slot;
                    exchangeImport(slot, row.stand);
                }
        });
    }
    ~MadeWindows()
    {
        forEachImport(::GetModuleHandleW(nullptr), [](char const*, void** slot) {
            for (Row const& row : kRows)
                if (*slot == row.stand)
                    exchangeImport(slot, *row.original);
        });
        s_present = nullptr;
    }

    std::vector<MadeWindow> windows;
    bool controlsInitialised = false;
    bool failing = false; ///< from here on no window is made

private:
    static void WINAPI initCommonControls()
    {
        s_present->controlsInitialised = true;
        s_initCommonControls();
    }
    static HWND WINAPI createWindowExA(DWORD extendedStyle, LPCSTR className, LPCSTR title, DWORD style,
                                       int x, int y, int width, int height, HWND parent, HMENU menu,
                                       HINSTANCE instance, LPVOID data)
    {
        std::string const name = IS_INTRESOURCE(className) ? "an atom" : className;
        s_present->windows.push_back({s_present->controlsInitialised,
                                      extendedStyle,
                                      name,
                                      title != nullptr,
                                      style,
                                      {x, y, width, height},
                                      parent,
                                      menu,
                                      instance,
                                      data});
        if (s_present->failing)
            return nullptr;
        return s_createWindowExA(extendedStyle, className, title, style, x, y, width, height, parent, menu,
                                 instance, data);
    }

    inline static MadeWindows* s_present = nullptr;
    inline static decltype(&::InitCommonControls) s_initCommonControls = nullptr;
    inline static decltype(&::CreateWindowExA) s_createWindowExA = nullptr;

    /// A function by its name among the imports: what stands for it, and where the original is kept.
    struct Row {
        std::string_view name;
        void* stand;
        void** original;
    };
    inline static Row const kRows[] = {
        {"InitCommonControls", reinterpret_cast<void*>(&initCommonControls),
         reinterpret_cast<void**>(&s_initCommonControls)},
        {"CreateWindowExA", reinterpret_cast<void*>(&createWindowExA),
         reinterpret_cast<void**>(&s_createWindowExA)},
    };
};

} // namespace quillet::winsvc

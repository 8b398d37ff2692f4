// The system's dialogs for a colour, a font and a file.
#include "pages/CommonDialogs.h"

#include "base/Handles.h"

namespace quillet {

namespace {

struct LibraryTraits {
    using Handle = HMODULE;
    static void close(HMODULE library) noexcept { ::FreeLibrary(library); }
};

template <class Dialog> bool show(char const* function, Dialog& dialog) noexcept
{
    UniqueHandle<LibraryTraits> const library(::LoadLibraryW(L"comdlg32.dll"));
    // By way of a plain function pointer, as compilers mistrust the direct conversion.
    auto const plain = reinterpret_cast<void (*)()>(::GetProcAddress(library.get(), function));
    auto const open = reinterpret_cast<BOOL(APIENTRY*)(Dialog*)>(plain);
    return open && open(&dialog);
}

} // namespace

bool chooseColour(CHOOSECOLORW& dialog) noexcept { return show("ChooseColorW", dialog); }
bool chooseFont(CHOOSEFONTW& dialog) noexcept { return show("ChooseFontW", dialog); }
bool chooseFile(OPENFILENAMEW& dialog) noexcept { return show("GetOpenFileNameW", dialog); }

} // namespace quillet

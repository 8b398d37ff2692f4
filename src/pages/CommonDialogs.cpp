// The system's dialogs for a colour, a font and a file.
#include "pages/CommonDialogs.h"

#include "base/Handles.h"

namespace quillet {

namespace {

template <class Dialog> bool show(char const* function, Dialog& dialog) noexcept
{
    UniqueLibrary const library(::LoadLibraryW(L"comdlg32.dll"));
    auto const open = functionOf<BOOL APIENTRY(Dialog*)>(library.get(), function);
    return open && open(&dialog);
}

} // namespace

bool chooseColour(CHOOSECOLORW& dialog) noexcept { return show("ChooseColorW", dialog); }
bool chooseFont(CHOOSEFONTW& dialog) noexcept { return show("ChooseFontW", dialog); }
bool chooseFile(OPENFILENAMEW& dialog) noexcept { return show("GetOpenFileNameW", dialog); }

} // namespace quillet

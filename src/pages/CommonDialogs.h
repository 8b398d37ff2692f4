// The system's dialogs for a colour, a font and a file. Their library is loaded when one is opened: forms
// that run never need it.
#pragma once

#include <windows.h>

#include <commdlg.h>

namespace quillet {

// Whether the user chose.
bool chooseColour(CHOOSECOLORW& dialog) noexcept;
bool chooseFont(CHOOSEFONTW& dialog) noexcept;
bool chooseFile(OPENFILENAMEW& dialog) noexcept;

} // namespace quillet

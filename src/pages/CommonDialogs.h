// The system's dialogs for a colour, a font and a file. Their library is loaded when one is opened: forms
// that run never need it.
#pragma once

#include <windows.h>

#include <commdlg.h>

namespace quillet {

// Each shows its dialog and answers whether the user chose something.
bool chooseColour(CHOOSECOLORW& dialog) noexcept;
bool chooseFont(CHOOSEFONTW& dialog) noexcept;
bool chooseFile(OPENFILENAMEW& dialog) noexcept;

} // namespace quillet

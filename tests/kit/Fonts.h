// Standard font and picture objects for tests to hand out.
#pragma once

#include "base/ComPtr.h"

#include <ocidl.h>
#include <olectl.h>
#include <windows.h>

#include <string>

namespace quillet::kit {

/// A new standard font object.
ComPtr<IFont> newFont(wchar_t const* name, int points, bool bold = false);

/// A new font object that is equal to another, underlined or not.
ComPtr<IFont> copyOf(IFont& font, bool underlined);

std::wstring nameOf(IFont& font);
int pointsOf(IFont& font);
bool isUnderlined(IFont& font);
HFONT handleOf(IFont& font);

/// Whether two fonts look the same. Fonts settle name and character set at their first use, so both are used
/// first.
bool equalFonts(IFont& a, IFont& b);

/// A picture object of what the description names, which becomes its own.
ComPtr<IPictureDisp> newPicture(PICTDESC description);

/// A picture object that holds a small bitmap, or an icon.
ComPtr<IPictureDisp> newBitmapPicture(int width, int height, COLORREF color);
ComPtr<IPictureDisp> newIconPicture();

} // namespace quillet::kit

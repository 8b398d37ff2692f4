// Standard font objects, as forms describe them.
#pragma once

#include "base/ComPtr.h"
#include "gallery/form/FormTree.h"

#include <ocidl.h>
#include <olectl.h>
#include <windows.h>

#include <string>
#include <string_view>

namespace quillet::gallery {

/// The class of standard fonts, as forms write it.
inline constexpr std::wstring_view kStandardFont = L"{0BE35203-8F91-11CE-9DE3-00AA004BB851}";

/// What BeginProperty Font says; the defaults are those of a form that says nothing.
struct FontFace {
    std::wstring name = L"MS Sans Serif";
    double points = 8.25;
    short charset = DEFAULT_CHARSET;
    short weight = FW_NORMAL;
    bool underline = false;
    bool italic = false;
    bool strikethrough = false;
};

/// The face that a block of properties describes; what it leaves out has its default.
FontFace fontFaceOf(PropertyBlock const& block);

/// A new standard font object. Throws what the system answers when it cannot make one.
ComPtr<IFont> makeFont(FontFace const& face);

/// The handle of a borrowed font, which lives as long as the font; the system's GUI font for none.
HFONT handleOf(IFont* font) noexcept;

} // namespace quillet::gallery

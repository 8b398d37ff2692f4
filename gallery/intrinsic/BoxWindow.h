// The window of a frame and of a placeholder: it draws itself and holds other controls.
#pragma once

#include <windows.h>

#include <string>

namespace quillet::gallery {

enum class BoxState { Enabled, Disabled };
enum class BoxEdge { Etched, None };

struct BoxLook {
    std::wstring caption;
    HFONT font;
    COLORREF foreColor;
    HBRUSH background;
    BoxState state;
    BoxEdge edge;
};

/// A box with a caption in its upper edge, as a group of controls has it; without an edge a plain area.
void drawFrame(HDC dc, RECT area, BoxLook const& look);
/// A plain box with its caption in the middle.
void drawPlaceholder(HDC dc, RECT area, BoxLook const& look);

/// The name of the window class, registered at its first use. A window of it is made with its
/// IntrinsicControl as creation data.
wchar_t const* boxWindowClass() noexcept;

} // namespace quillet::gallery

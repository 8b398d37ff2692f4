// The surface's picture element: a picture shown over the background of a control.
#pragma once

#include "base/ComPtr.h"
#include "base/Handles.h"

#include <ocidl.h>
#include <windows.h>

namespace quillet {

/// Has no window and no background of its own: it is part of the control's picture, drawn after the
/// background and before the one copy to the screen. Shows bitmaps and icons in their own size in pixels, and
/// their true alpha where they have it; other kinds as the picture object renders itself.
class ImageElement {
public:
    /// Shows and keeps a picture; nothing is shown for null and for an empty one.
    void setPicture(IUnknown* picture);
    bool isEmpty() const noexcept { return !m_picture; }

    /// The picture's size in pixels; empty where there is none.
    SIZE size() const noexcept { return m_size; }

    /// Puts the picture's top left corner there, in pixels of the DC that it is drawn into.
    void moveTo(POINT place) noexcept { m_place = place; }
    void draw(HDC dc) const;

private:
    /// How the picture comes into a DC.
    enum class Way { Nothing, Icon, Copied, Blended, Rendered };

    Way wayOf(SHORT type);
    void drawBitmap(HDC dc) const;
    void render(HDC dc) const;

    ComPtr<IPicture> m_picture; ///< empty for an empty picture
    HANDLE m_handle = nullptr;  ///< the picture's own
    Way m_way = Way::Nothing;
    SIZE m_size = {};
    POINT m_place = {};
    UniqueBitmap m_premultiplied; ///< of a bitmap with alpha: the copy that blending takes
};

} // namespace quillet

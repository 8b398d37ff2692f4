// The off-screen bitmap on which a control composes its picture before one copy to the screen.
#pragma once

#include "base/ComPtr.h"
#include "base/Handles.h"
#include "base/Variant.h"

#include <ocidl.h>
#include <olectl.h>
#include <windows.h>

#include <string_view>

namespace quillet {

/// A memory device context with a bitmap of the control's size. A control makes one on the stack when a paint
/// starts, binds it with Initialize, draws, copies once with BlastToScreen and lets it go.
///
/// Colours are GDI colour references as they stand; lengths are pixels. GDI results are not checked: a call
/// that fails draws nothing. A sum of coordinates that leaves 32 bits raises Overflow and ends its operation.
class OffScreenDC {
public:
    OffScreenDC() noexcept = default;
    ~OffScreenDC();
    OffScreenDC(OffScreenDC const&) = delete;
    OffScreenDC& operator=(OffScreenDC const&) = delete;

    COLORREF BackColor() const noexcept;
    void BackColor(COLORREF rgbNew) noexcept;
    COLORREF TextColor() const noexcept;
    void TextColor(COLORREF rgbNew) noexcept;

    /// The font last given; empty when there is none.
    ComPtr<IFontDisp> Font() const noexcept;
    /// Selects a borrowed font; null brings the DC's initial font back, and is an error (object not set)
    /// while there is no font to replace. A font that has no handle to give fails with its own result.
    void Font(IFont* newFont);

    // Always black: no operation assigns them.
    COLORREF ThreeDFaceColor() const noexcept { return m_threeDFaceColor; }
    COLORREF ThreeDHighlightColor() const noexcept { return m_threeDHighlightColor; }
    COLORREF ThreeDShadowColor() const noexcept { return m_threeDShadowColor; }

    /// Makes the memory DC and the bitmap for a control's DC, which stays the control's, and size. To be
    /// called once: a second call overwrites the DC and the bitmap of the first without freeing them.
    void Initialize(HDC ctlHdc, long ctlWidth, long ctlHeight) noexcept;

    /// Fills a rectangle and writes a caption with its top left corner at a point, clipped to the rectangle.
    /// The colour stays the background colour. The alignment is ignored: the point places the caption.
    void FillRect(long left, long top, long width, long height, COLORREF rgbColor, long captionX = 0,
                  long captionY = 0, std::wstring_view caption = {}, short captionAlign = 0);

    void InvertRectangle(long left, long top, long width, long height);

    /// The memory DC, for elements that draw themselves.
    HDC dc() const noexcept { return m_memoryDc.get(); }

    /// Width and height of a text in the selected font, in pixels, as it would be written.
    SIZE textExtent(std::wstring_view text) const;

    /// Copies a rectangle to the same place of the control's DC. A width or height of -1 stands for that of
    /// the bitmap, which the caller's variable then holds.
    void BlastToScreen(long left, long top, long& width, long& height) const noexcept;
    void BlastToScreen(long left, long top, long& width) const noexcept;
    void BlastToScreen(long left, long top, long&& width, long&& height) const noexcept;
    void BlastToScreen(long left = 0, long top = 0) const noexcept;

    /// Writes text at a point, and paints everything from there to the bitmap's bottom right corner in the
    /// background colour first.
    void PrintString(long x, long y, std::wstring_view caption);

    /// Draws rings of one pixel round the whole bitmap, from the edge inwards. Answers an empty variant.
    Variant Draw3DBorder(COLORREF topColor, COLORREF bottomColor, long width);

private:
    static Variant Draw3DRect(HDC dc, RECT const& rectangle, COLORREF topColor, COLORREF bottomColor);

    void writeOpaque(long x, long y, RECT const& rectangle, std::wstring_view caption) const;
    HGDIOBJ selectFont() const;

    // At the end the DC goes before the font whose handle it may still have selected.
    ComPtr<IFont> m_font;
    UniqueMemoryDc m_memoryDc;
    HDC m_targetDc = nullptr;
    HGDIOBJ m_initialBitmap = nullptr; // of the memory DC, selected again at the end
    HGDIOBJ m_initialFont = nullptr;
    long m_width = 0;
    long m_height = 0;
    COLORREF m_threeDFaceColor = 0;
    COLORREF m_threeDHighlightColor = 0;
    COLORREF m_threeDShadowColor = 0;
};

} // namespace quillet

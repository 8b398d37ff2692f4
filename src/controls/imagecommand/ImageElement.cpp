// The surface's picture element: a picture shown over the background of a control.
#include "controls/imagecommand/ImageElement.h"

#include "base/Scale.h"
#include "saving/StandardPicture.h"

#include <olectl.h>

#include <algorithm>
#include <cstdint>
#include <vector>

namespace quillet {

namespace {

BITMAPINFO trueColour(SIZE size) noexcept
{
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = size.cx;
    info.bmiHeader.biHeight = -size.cy; // rows from the top
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    return info;
}

/// The bitmap's pixels as alpha, red, green, blue; empty where it has no room for alpha.
std::vector<std::uint32_t> alphaPixels(HBITMAP bitmap, SIZE size)
{
    BITMAP format = {};
    if (!::GetObjectW(bitmap, sizeof(format), &format) || format.bmBitsPixel != 32)
        return {};
    std::vector<std::uint32_t> pixels(static_cast<size_t>(size.cx) * static_cast<size_t>(size.cy));
    BITMAPINFO info = trueColour(size);
    WindowDc const screen(nullptr);
    if (!::GetDIBits(screen.get(), bitmap, 0, static_cast<UINT>(size.cy), pixels.data(), &info,
                     DIB_RGB_COLORS))
        return {};
    return pixels;
}

constexpr std::uint32_t alphaOf(std::uint32_t pixel) noexcept { return pixel >> 24; }

/// Multiplies each colour by its alpha, as blending takes it.
std::uint32_t premultiplied(std::uint32_t pixel) noexcept
{
    std::uint32_t const alpha = alphaOf(pixel);
    auto const share = [&](int shift) { return (((pixel >> shift & 0xFF) * alpha + 127) / 255) << shift; };
    return alpha << 24 | share(16) | share(8) | share(0);
}

UniqueBitmap bitmapOf(std::vector<std::uint32_t> const& pixels, SIZE size)
{
    BITMAPINFO const info = trueColour(size);
    void* bits = nullptr;
    UniqueBitmap bitmap(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (bitmap)
        std::ranges::copy(pixels, static_cast<std::uint32_t*>(bits));
    return bitmap;
}

/// A copy to blend with; empty for a bitmap that is opaque.
UniqueBitmap premultipliedCopy(HBITMAP bitmap, SIZE size)
{
    std::vector<std::uint32_t> pixels = alphaPixels(bitmap, size);
    auto const isVisible = [](std::uint32_t pixel) { return alphaOf(pixel) != 0; };
    auto const isOpaque = [](std::uint32_t pixel) { return alphaOf(pixel) == 0xFF; };
    // A bitmap whose alpha is 0 throughout has no alpha: its fourth bytes are unused.
    if (std::ranges::none_of(pixels, isVisible) || std::ranges::all_of(pixels, isOpaque))
        return {};
    std::ranges::transform(pixels, pixels.begin(), premultiplied);
    return bitmapOf(pixels, size);
}

SIZE sizeOfBitmap(HANDLE bitmap) noexcept
{
    BITMAP format = {};
    ::GetObjectW(bitmap, sizeof(format), &format);
    return {format.bmWidth, format.bmHeight};
}

SIZE sizeOfIcon(HANDLE icon) noexcept
{
    ICONINFO parts = {};
    if (!::GetIconInfo(static_cast<HICON>(icon), &parts))
        return {};
    UniqueBitmap const colour(parts.hbmColor);
    UniqueBitmap const mask(parts.hbmMask);
    if (colour)
        return sizeOfBitmap(colour.get());
    SIZE const both = sizeOfBitmap(mask.get()); // without colours the mask holds two pictures
    return {both.cx, both.cy / 2};
}

SIZE sizeOfRendered(IPicture& picture) noexcept
{
    OLE_XSIZE_HIMETRIC width = 0;
    OLE_YSIZE_HIMETRIC height = 0;
    picture.get_Width(&width);
    picture.get_Height(&height);
    return pixelsOfHimetric(width, height);
}

/// Whether the picture object keeps a mask that only it can draw with.
bool hasMask(IPicture& picture) noexcept
{
    DWORD attributes = 0;
    return SUCCEEDED(picture.get_Attributes(&attributes)) && (attributes & PICTURE_TRANSPARENT) != 0;
}

} // namespace

void ImageElement::setPicture(IUnknown* picture)
{
    auto const taken = isEmptyPicture(picture) ? ComPtr<IPicture>() : query<IPicture>(picture);
    HANDLE const handle = taken ? pictureHandle(*taken.get()) : nullptr;
    if (taken.get() == m_picture.get() && handle == m_handle)
        return; // every repaint assigns it
    m_picture = taken;
    m_handle = handle;
    m_size = {};
    m_premultiplied.reset();
    m_way = wayOf(pictureType(taken.get()));
}

/// Measures the picture and prepares what drawing it takes.
ImageElement::Way ImageElement::wayOf(SHORT type)
{
    if (!m_picture)
        return Way::Nothing;
    if (type == PICTYPE_ICON) {
        m_size = sizeOfIcon(m_handle);
        return Way::Icon;
    }
    if (type != PICTYPE_BITMAP || hasMask(*m_picture.get())) {
        m_size = sizeOfRendered(*m_picture.get());
        return Way::Rendered;
    }
    m_size = sizeOfBitmap(m_handle);
    m_premultiplied = premultipliedCopy(static_cast<HBITMAP>(m_handle), m_size);
    return m_premultiplied ? Way::Blended : Way::Copied;
}

void ImageElement::draw(HDC dc) const
{
    switch (m_way) {
    case Way::Nothing:
        return;
    case Way::Icon:
        ::DrawIconEx(dc, m_place.x, m_place.y, static_cast<HICON>(m_handle), m_size.cx, m_size.cy, 0, nullptr,
                     DI_NORMAL);
        return;
    case Way::Copied:
    case Way::Blended:
        return drawBitmap(dc);
    case Way::Rendered:
        return render(dc);
    }
}

void ImageElement::drawBitmap(HDC dc) const
{
    HGDIOBJ const bitmap = m_way == Way::Blended ? m_premultiplied.get() : m_handle;
    UniqueMemoryDc const memory(::CreateCompatibleDC(dc));
    SelectScope const selected(memory.get(), bitmap);
    if (!selected.succeeded()) // it is selected into a DC of somebody else
        return render(dc);
    if (m_way == Way::Copied) {
        ::BitBlt(dc, m_place.x, m_place.y, m_size.cx, m_size.cy, memory.get(), 0, 0, SRCCOPY);
        return;
    }
    BLENDFUNCTION const over = {AC_SRC_OVER, 0, 0xFF, AC_SRC_ALPHA};
    ::GdiAlphaBlend(dc, m_place.x, m_place.y, m_size.cx, m_size.cy, memory.get(), 0, 0, m_size.cx, m_size.cy,
                    over);
}

void ImageElement::render(HDC dc) const
{
    OLE_XSIZE_HIMETRIC width = 0;
    OLE_YSIZE_HIMETRIC height = 0;
    m_picture->get_Width(&width);
    m_picture->get_Height(&height);
    RECT const bounds = {m_place.x, m_place.y, m_place.x + m_size.cx, m_place.y + m_size.cy};
    // A picture's rows go upwards.
    m_picture->Render(dc, m_place.x, m_place.y, m_size.cx, m_size.cy, 0, height, width, -height, &bounds);
}

} // namespace quillet

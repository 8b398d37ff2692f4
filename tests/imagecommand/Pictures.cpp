// Pictures for the buttons to show: each of a colour and a size of its own, so that it is known again.
#include "Pictures.h"

#include "base/Handles.h"
#include "base/RunTimeError.h"
#include "kit/Fonts.h"

#include <olectl.h>

#include <algorithm>

namespace quillet::image {

namespace {

PICTDESC description(UINT type)
{
    PICTDESC result{};
    result.picType = type;
    return result;
}

UniqueBitmap section(Pixels const& pixels, int side)
{
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = side;
    info.bmiHeader.biHeight = -side;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    UniqueBitmap bitmap(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    std::ranges::copy(pixels, static_cast<std::uint32_t*>(bits));
    return bitmap;
}

} // namespace

ComPtr<IPictureDisp> pictureOf(Plain const& plain)
{
    return kit::newBitmapPicture(plain.width, plain.height, plain.color);
}

ComPtr<IPictureDisp> emptyPicture()
{
    PICTDESC result = description(PICTYPE_NONE);
    return kit::newPicture(result);
}

ComPtr<IPictureDisp> unloadedPicture()
{
    ComPtr<IPictureDisp> picture;
    check(
        ::OleCreatePictureIndirect(nullptr, IID_IPictureDisp, TRUE, reinterpret_cast<void**>(picture.put())));
    return picture;
}

ComPtr<IPictureDisp> metafilePicture()
{
    HDC const dc = ::CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
    ::Rectangle(dc, 0, 0, 20, 20);
    PICTDESC result = description(PICTYPE_ENHMETAFILE);
    result.emf.hemf = ::CloseEnhMetaFile(dc);
    return kit::newPicture(result);
}

ComPtr<IPictureDisp> alphaBitmap(Pixels const& pixels, int side)
{
    PICTDESC result = description(PICTYPE_BITMAP);
    result.bmp.hbitmap = section(pixels, side).release();
    return kit::newPicture(result);
}

ComPtr<IPictureDisp> alphaIcon(Pixels const& pixels, int side)
{
    UniqueBitmap const color = section(pixels, side);
    UniqueBitmap const mask(::CreateBitmap(side, side, 1, 1, nullptr));
    ICONINFO parts{};
    parts.fIcon = TRUE;
    parts.hbmColor = color.get();
    parts.hbmMask = mask.get();
    PICTDESC result = description(PICTYPE_ICON);
    result.icon.hicon = ::CreateIconIndirect(&parts);
    return kit::newPicture(result);
}

ComPtr<IPictureDisp> maskIcon(int side)
{
    std::vector<BYTE> const black(static_cast<size_t>(side) *
                                  2); // rows of 16 bits: nothing stays or is turned
    PICTDESC result = description(PICTYPE_ICON);
    result.icon.hicon = ::CreateIcon(nullptr, side, side, 1, 1, black.data(), black.data());
    return kit::newPicture(result);
}

short typeOf(IPictureDisp* picture)
{
    SHORT type = 0x55;
    if (auto const known = query<IPicture>(picture))
        known->get_Type(&type);
    return type;
}

} // namespace quillet::image

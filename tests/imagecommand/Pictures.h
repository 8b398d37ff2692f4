// Pictures for the buttons to show: each of a colour and a size of its own, so that it is known again.
#pragma once

#include "base/ComPtr.h"

#include <ocidl.h>
#include <windows.h>

#include <cstdint>
#include <vector>

namespace quillet::image {

/// Width, height and colour of a bitmap that is one colour throughout.
struct Plain {
    int width;
    int height;
    COLORREF color;
};

constexpr Plain kImage{16, 12, RGB(250, 10, 10)};
constexpr Plain kDisabled{14, 10, RGB(10, 10, 250)};
constexpr Plain kHot{10, 14, RGB(250, 250, 10)};
constexpr Plain kPressed{12, 16, RGB(10, 250, 10)};

ComPtr<IPictureDisp> pictureOf(Plain const& plain);
/// No picture at all: what clearing a picture assigns.
ComPtr<IPictureDisp> emptyPicture();
/// A picture object that was never given anything.
ComPtr<IPictureDisp> unloadedPicture();
/// A metafile: a picture that is neither bitmap nor icon.
ComPtr<IPictureDisp> metafilePicture();

/// Pixels of 32 bits, alpha first (not multiplied into the colours), from the top; a square.
using Pixels = std::vector<std::uint32_t>;
ComPtr<IPictureDisp> alphaBitmap(Pixels const& pixels, int side);
ComPtr<IPictureDisp> alphaIcon(Pixels const& pixels, int side);
/// A black square without colours of its own: an icon that is a mask alone.
ComPtr<IPictureDisp> maskIcon(int side);

short typeOf(IPictureDisp* picture);

} // namespace quillet::image

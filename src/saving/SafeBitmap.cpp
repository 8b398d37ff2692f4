// Bitmaps, and icons and cursors, which are made of them.
#include "saving/PictureFormats.h"

#include <algorithm>

namespace quillet {

namespace {

/// What a header says of the image behind it. Everything in 64 bits, so that no sum or product of what it
/// says can overflow.
struct Image {
    std::uint64_t header; ///< bytes, with masks and colours
    std::uint64_t width;  ///< pixels
    std::uint64_t height;
    unsigned depth; ///< bits a pixel
    bool isCompressed;

    std::uint64_t rows(std::uint64_t count, unsigned bits) const noexcept
    {
        return (width * bits + 31) / 32 * 4 * count;
    }
};

bool isDepth(unsigned bits) noexcept
{
    constexpr unsigned kDepths[] = {1, 4, 8, 16, 24, 32};
    return std::ranges::find(kDepths, bits) != std::end(kDepths);
}

/// Some systems save a monochrome icon as a bitmap without any pixels.
bool isHonest(Image const& image) noexcept
{
    if (image.width == 0 && image.height == 0 && image.depth == 0)
        return true;
    return isHonestSize(image.width, image.height) && isDepth(image.depth);
}

std::optional<Image> coreImage(PictureBytes bytes) noexcept
{
    auto const core = valueAt<BITMAPCOREHEADER>(bytes, 0);
    if (!core)
        return std::nullopt;
    unsigned const colours = core->bcBitCount <= 8 ? 1u << core->bcBitCount : 0;
    return Image{sizeof *core + colours * sizeof(RGBTRIPLE), core->bcWidth, core->bcHeight, core->bcBitCount,
                 false};
}

std::optional<Image> infoImage(PictureBytes bytes) noexcept
{
    auto const info = valueAt<BITMAPINFOHEADER>(bytes, 0);
    if (!info || info->biSize < sizeof *info || info->biWidth < 0)
        return std::nullopt;
    bool const isCompressed = (info->biCompression == BI_RLE8 && info->biBitCount == 8) ||
                              (info->biCompression == BI_RLE4 && info->biBitCount == 4);
    if (!isCompressed && info->biCompression != BI_RGB && info->biCompression != BI_BITFIELDS)
        return std::nullopt;
    unsigned const masks = info->biCompression == BI_BITFIELDS && info->biSize == sizeof *info ? 3 : 0;
    std::uint64_t const most = info->biBitCount <= 8 ? 1u << info->biBitCount : 0;
    std::uint64_t const colours = info->biClrUsed ? info->biClrUsed : most;
    auto const height = std::int64_t{info->biHeight};
    return Image{info->biSize + (masks + colours) * sizeof(DWORD), static_cast<std::uint64_t>(info->biWidth),
                 static_cast<std::uint64_t>(height < 0 ? -height : height), info->biBitCount, isCompressed};
}

std::optional<Image> imageAt(PictureBytes bytes) noexcept
{
    auto const size = valueAt<DWORD>(bytes, 0);
    auto const image = size == sizeof(BITMAPCOREHEADER) ? coreImage(bytes) : infoImage(bytes);
    return image && isHonest(*image) && image->header <= bytes.size() ? image : std::nullopt;
}

/// An image of an icon: its colours, and behind them its mask, which those with an alpha channel may lack.
bool isSafeIconImage(PictureBytes bytes) noexcept
{
    if (beginsWith(bytes, kPngMark))
        return isSafePng(bytes);
    auto const image = imageAt(bytes);
    if (!image || image->isCompressed)
        return false;
    std::uint64_t const height = image->height / 2; // the header counts the mask's rows, too
    std::uint64_t const mask = image->depth == 32 ? 0 : image->rows(height, 1);
    return image->header + image->rows(height, image->depth) + mask <= bytes.size();
}

/// What an icon file lists of each of its images.
struct DirectoryEntry {
    BYTE width; // pixels; 0 for 256
    BYTE height;
    BYTE colours;
    BYTE reserved;
    WORD planes; // or the hot spot of a cursor
    WORD bits;
    DWORD size; // bytes
    DWORD offset;
};
static_assert(sizeof(DirectoryEntry) == 16);

} // namespace

bool isSafeBitmap(PictureBytes file) noexcept
{
    auto const header = valueAt<BITMAPFILEHEADER>(file, 0);
    auto const image = header ? imageAt(file.subspan(sizeof *header)) : std::nullopt;
    if (!image || header->bfOffBits > file.size())
        return false;
    return image->isCompressed || header->bfOffBits + image->rows(image->height, image->depth) <= file.size();
}

bool isSafeIcon(PictureBytes file) noexcept
{
    constexpr size_t kEntries = 6;
    auto const count = valueAt<WORD>(file, kEntries - sizeof(WORD)).value_or(0);
    for (size_t i = 0; i < count; ++i) {
        auto const entry = valueAt<DirectoryEntry>(file, kEntries + i * sizeof(DirectoryEntry));
        if (!entry || entry->offset > file.size() || entry->size > file.size() - entry->offset ||
            !isSafeIconImage(file.subspan(entry->offset, entry->size)))
            return false;
    }
    return count > 0;
}

} // namespace quillet

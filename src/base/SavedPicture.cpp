// Bitmaps, icons and cursors as files have them, looked over before anybody believes them.
#include "base/SavedPicture.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string_view>

namespace quillet {

namespace {

using Bytes = std::span<BYTE const>;
using namespace std::string_view_literals;

constexpr auto kSaved = "lt\0\0"sv; // what a picture object writes first; the length of the file follows
constexpr auto kBitmap = "BM"sv;
constexpr auto kIcon = "\0\0\1\0"sv;
constexpr auto kCursor = "\0\0\2\0"sv;
constexpr auto kPng = "\x89PNG\r\n\x1A\n"sv;
constexpr auto kGif = "GIF8"sv;
constexpr auto kJpeg = "\xFF\xD8"sv;

bool beginsWith(Bytes bytes, std::string_view mark) noexcept
{
    return bytes.size() >= mark.size() && std::memcmp(bytes.data(), mark.data(), mark.size()) == 0;
}

/// The value at an offset; nothing where it does not lie within the bytes.
template <class T> std::optional<T> valueAt(Bytes bytes, size_t at) noexcept
{
    if (at > bytes.size() || bytes.size() - at < sizeof(T))
        return std::nullopt;
    T value;
    std::memcpy(&value, bytes.data() + at, sizeof value);
    return value;
}

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

/// Of so many pixels system loaders can still count the bytes in 32 bits, and no button shows more. None at
/// all is what some systems save of a monochrome icon.
bool isHonest(Image const& image) noexcept
{
    constexpr std::uint64_t kLongest = 0x7FFF; // GDI's coordinates
    constexpr std::uint64_t kMost = 64u << 20;
    if (image.width == 0 && image.height == 0 && image.depth == 0)
        return true;
    return image.width > 0 && image.width <= kLongest && image.height > 0 && image.height <= kLongest &&
           image.width * image.height <= kMost && isDepth(image.depth);
}

std::optional<Image> coreImage(Bytes bytes) noexcept
{
    auto const core = valueAt<BITMAPCOREHEADER>(bytes, 0);
    if (!core)
        return std::nullopt;
    unsigned const colours = core->bcBitCount <= 8 ? 1u << core->bcBitCount : 0;
    return Image{sizeof *core + colours * sizeof(RGBTRIPLE), core->bcWidth, core->bcHeight, core->bcBitCount,
                 false};
}

std::optional<Image> infoImage(Bytes bytes) noexcept
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

std::optional<Image> imageAt(Bytes bytes) noexcept
{
    auto const size = valueAt<DWORD>(bytes, 0);
    auto const image = size == sizeof(BITMAPCOREHEADER) ? coreImage(bytes) : infoImage(bytes);
    return image && isHonest(*image) && image->header <= bytes.size() ? image : std::nullopt;
}

bool isWholeBitmap(Bytes file) noexcept
{
    auto const header = valueAt<BITMAPFILEHEADER>(file, 0);
    auto const image = header ? imageAt(file.subspan(sizeof *header)) : std::nullopt;
    if (!image || header->bfOffBits > file.size())
        return false;
    return image->isCompressed || header->bfOffBits + image->rows(image->height, image->depth) <= file.size();
}

/// An image of an icon: its colours, and behind them its mask, which those with an alpha channel may lack.
bool isWholeIconImage(Bytes bytes) noexcept
{
    if (beginsWith(bytes, kPng))
        return true;
    auto const image = imageAt(bytes);
    if (!image || image->isCompressed)
        return false;
    std::uint64_t const height = image->height / 2; // the header counts the mask's rows, too
    std::uint64_t const mask = image->depth == 32 ? 0 : image->rows(height, 1);
    return image->header + image->rows(height, image->depth) + mask <= bytes.size();
}

/// As icon files have it for each of their images.
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

bool isWholeIcon(Bytes file) noexcept
{
    constexpr size_t kEntries = 6;
    auto const count = valueAt<WORD>(file, kEntries - sizeof(WORD)).value_or(0);
    for (size_t i = 0; i < count; ++i) {
        auto const entry = valueAt<DirectoryEntry>(file, kEntries + i * sizeof(DirectoryEntry));
        if (!entry || entry->offset > file.size() || entry->size > file.size() - entry->offset ||
            !isWholeIconImage(file.subspan(entry->offset, entry->size)))
            return false;
    }
    return count > 0;
}

} // namespace

bool isWholePicture(Bytes saved) noexcept
{
    Bytes file = saved;
    do { // some forms have the mark twice
        auto const length = beginsWith(file, kSaved) ? valueAt<DWORD>(file, kSaved.size()) : std::nullopt;
        if (!length || *length > file.size() - kSaved.size() - sizeof *length)
            return false;
        file = file.subspan(kSaved.size() + sizeof *length, *length);
    } while (beginsWith(file, kSaved));
    if (beginsWith(file, kBitmap))
        return isWholeBitmap(file);
    if (beginsWith(file, kIcon) || beginsWith(file, kCursor))
        return isWholeIcon(file);
    return file.empty() || beginsWith(file, kGif) || beginsWith(file, kJpeg) || beginsWith(file, kPng);
}

} // namespace quillet

// Pictures in the formats of files, whole and with one thing wrong at a time.
#include "saving/SavedPicture.h"

#include "kit/Memory.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <climits>

namespace quillet {
namespace {

using kit::Bytes;

template <class T> Bytes bytesOf(T const& value)
{
    auto const* const first = reinterpret_cast<BYTE const*>(&value);
    return {first, first + sizeof value};
}

Bytes operator+(Bytes head, Bytes const& tail)
{
    head.insert(head.end(), tail.begin(), tail.end());
    return head;
}

Bytes operator+(Bytes head, size_t zeros)
{
    head.resize(head.size() + zeros);
    return head;
}

Bytes textBytes(std::string_view text) { return {text.begin(), text.end()}; }

Bytes saved(Bytes const& file)
{
    return Bytes{'l', 't', 0, 0} + bytesOf(static_cast<DWORD>(file.size())) + file;
}

bool isWhole(Bytes const& file) { return isSafePicture(saved(file)); }

/// Whether a file is whole, and is not without its last byte.
bool isWholeToItsLastByte(Bytes file)
{
    bool const isAll = isWhole(file);
    file.pop_back();
    return isAll && !isWhole(file);
}

BITMAPINFOHEADER header(LONG width, LONG height, WORD depth, DWORD compression = BI_RGB)
{
    BITMAPINFOHEADER made = {};
    made.biSize = sizeof made;
    made.biWidth = width;
    made.biHeight = height;
    made.biPlanes = 1;
    made.biBitCount = depth;
    made.biCompression = compression;
    return made;
}

/// A bitmap's file: the header with what belongs to it, then the bits.
Bytes bitmap(Bytes const& head, size_t bits)
{
    BITMAPFILEHEADER file = {};
    file.bfType = 0x4D42;
    file.bfOffBits = static_cast<DWORD>(sizeof file + head.size());
    return bytesOf(file) + head + bits;
}

/// An icon's file, of images that begin behind its directory.
Bytes icon(std::vector<Bytes> const& images, BYTE type = 1)
{
    Bytes file = Bytes{0, 0, type, 0, static_cast<BYTE>(images.size()), 0};
    size_t at = 6 + 16 * images.size();
    Bytes all;
    for (Bytes const& image : images) {
        file = file + Bytes{16, 16, 0, 0, 1, 0, 4, 0} + bytesOf(static_cast<DWORD>(image.size())) +
               bytesOf(static_cast<DWORD>(at));
        at += image.size();
        all = all + image;
    }
    return file + all;
}

Bytes bigEndian(DWORD value, size_t size)
{
    Bytes bytes;
    for (size_t i = size; i-- > 0;)
        bytes.push_back(static_cast<BYTE>(value >> 8 * i));
    return bytes;
}

Bytes png(DWORD width, DWORD height)
{
    return textBytes("\x89PNG\r\n\x1a\n") + Bytes{0, 0, 0, 13, 'I', 'H', 'D', 'R'} + bigEndian(width, 4) +
           bigEndian(height, 4) + 9;
}

/// Behind some tables, as cameras write them.
Bytes jpeg(DWORD width, DWORD height, BYTE frame = 0xC0)
{
    return Bytes{0xFF, 0xD8, 0xFF, 0xE0, 0, 6,    'J',   'F', 0xFF, 0xC0, 0xFF,
                 0xFF, 0xC4, 0,    3,    7, 0xFF, frame, 0,   11,   8} +
           bigEndian(height, 2) + bigEndian(width, 2) + Bytes{1, 1, 0x11, 0, 0xFF, 0xDA, 0, 2};
}

Bytes const kGifColours{0, 0, 0, 255, 255, 255};

Bytes gifScreen(WORD width, WORD height, BYTE flags)
{
    return textBytes("GIF89a") + bytesOf(width) + bytesOf(height) + Bytes{flags, 0, 0};
}

Bytes gifFrame(WORD width, WORD height, BYTE flags, Bytes const& colours = {})
{
    return Bytes{',', 0, 0, 0, 0} + bytesOf(width) + bytesOf(height) + Bytes{flags} + colours +
           Bytes{2, 2, 'D', 1, 0};
}

Bytes const kGifEnd{';'};

constexpr size_t kMask16 = 16 * 4; // 16 rows of 16 bits, each in whole double words

/// 16 by 16 pixels in 16 colours: 104 bytes of header and colours, 128 of bits, 64 of mask.
Bytes smallImage(BITMAPINFOHEADER const& head = header(16, 32, 4))
{
    return bytesOf(head) + 64 + 128 + kMask16;
}

TEST(SavedPicture, mayBeABitmapOfAnyDepth)
{
    // Rows of 9 pixels take 4, 8, 12, 20, 28 and 36 bytes.
    EXPECT_TRUE(isWholeToItsLastByte(bitmap(bytesOf(header(9, 5, 1)) + 8, 20)));
    EXPECT_TRUE(isWholeToItsLastByte(bitmap(bytesOf(header(9, 5, 4)) + 64, 40)));
    EXPECT_TRUE(isWholeToItsLastByte(bitmap(bytesOf(header(9, 5, 8)) + 1024, 60)));
    EXPECT_TRUE(isWholeToItsLastByte(bitmap(bytesOf(header(9, 5, 16)), 100)));
    EXPECT_TRUE(isWholeToItsLastByte(bitmap(bytesOf(header(9, 5, 24)), 140)));
    EXPECT_TRUE(isWholeToItsLastByte(bitmap(bytesOf(header(9, 5, 32)), 180)));
}

TEST(SavedPicture, mayBeABitmapOfEveryForm)
{
    EXPECT_TRUE(isWholeToItsLastByte(bitmap(bytesOf(header(9, -5, 24)), 140)))
        << "from its top to its bottom";
    EXPECT_TRUE(isWholeToItsLastByte(bitmap(bytesOf(header(9, 5, 16, BI_BITFIELDS)) + 12, 100)));
    BITMAPCOREHEADER const core = {sizeof core, 9, 5, 1, 4};
    EXPECT_TRUE(isWholeToItsLastByte(bitmap(bytesOf(core) + 48, 40)));
    BITMAPINFOHEADER fewColours = header(9, 5, 8);
    fewColours.biClrUsed = 3;
    EXPECT_TRUE(isWholeToItsLastByte(bitmap(bytesOf(fewColours) + 12, 60)));
    BITMAPINFOHEADER fifth = header(9, 5, 32, BI_BITFIELDS);
    fifth.biSize = 124;
    EXPECT_TRUE(isWholeToItsLastByte(bitmap(bytesOf(fifth) + 84, 180))) << "its masks lie in the header";
    EXPECT_TRUE(isWhole(bitmap(bytesOf(header(9, 5, 8, BI_RLE8)) + 1024, 2)));
    EXPECT_TRUE(isWhole(bitmap(bytesOf(header(9, 5, 4, BI_RLE4)) + 64, 2)));
    EXPECT_TRUE(isWhole(bitmap(bytesOf(header(9, 5, 24)), 140) + 2)) << "more is of no harm";
}

TEST(SavedPicture, mayBeAnIconOrACursor)
{
    EXPECT_TRUE(isWholeToItsLastByte(icon({smallImage()})));
    EXPECT_TRUE(isWholeToItsLastByte(icon({smallImage()}, 2)));
    EXPECT_TRUE(isWholeToItsLastByte(icon({smallImage(), smallImage()})));
    EXPECT_TRUE(isWholeToItsLastByte(icon({png(9, 5), smallImage()})));
    BITMAPCOREHEADER const core = {sizeof core, 16, 32, 1, 1};
    EXPECT_TRUE(isWholeToItsLastByte(icon({bytesOf(core) + 6 + kMask16 + kMask16})));
}

/// Whether an icon of the image is whole, and one of the image without its last byte is not.
bool isNeededToItsLastByte(Bytes image)
{
    bool const isAll = isWhole(icon({image}));
    image.pop_back();
    return isAll && !isWhole(icon({image}));
}

TEST(SavedPicture, hasTheMaskOfAnIconOfAnyDepthWithoutAnAlphaChannel)
{
    // Rows of 16 pixels take 4, 8, 16, 32 and 48 bytes.
    EXPECT_TRUE(isNeededToItsLastByte(bytesOf(header(16, 32, 1)) + 8 + 16 * 4 + kMask16));
    EXPECT_TRUE(isNeededToItsLastByte(bytesOf(header(16, 32, 4)) + 64 + 16 * 8 + kMask16));
    EXPECT_TRUE(isNeededToItsLastByte(bytesOf(header(16, 32, 8)) + 1024 + 16 * 16 + kMask16));
    EXPECT_TRUE(isNeededToItsLastByte(bytesOf(header(16, 32, 16)) + 16 * 32 + kMask16));
    EXPECT_TRUE(isNeededToItsLastByte(bytesOf(header(16, 32, 24)) + 16 * 48 + kMask16));
}

TEST(SavedPicture, mayLackTheMaskOfAnIconWithAnAlphaChannel)
{
    EXPECT_TRUE(isWhole(icon({bytesOf(header(16, 32, 32)) + 1024 + kMask16})));
    EXPECT_TRUE(isWholeToItsLastByte(icon({bytesOf(header(16, 32, 32)) + 1024})));
}

TEST(SavedPicture, mayBeAnIconWithoutPixels)
{
    EXPECT_TRUE(isWhole(icon({bytesOf(header(0, 0, 0)) + 4})));
    EXPECT_FALSE(isWhole(icon({bytesOf(header(0, 0, 9)) + 2000})));
    EXPECT_FALSE(isWhole(icon({bytesOf(header(0, 1, 0)) + 2000})));
}

TEST(SavedPicture, mayBeAPng)
{
    EXPECT_TRUE(isWhole(png(9, 5)));
    EXPECT_TRUE(isWhole(png(8192, 8192)));
    for (DWORD const length : {0U, 0x8000U, 0x10009U, 0x40000001U, 0x80000009U, 0xFFFFFFFFU}) {
        EXPECT_FALSE(isWhole(png(length, 5))) << length;
        EXPECT_FALSE(isWhole(png(9, length))) << length;
        EXPECT_FALSE(isWhole(icon({png(9, length)}))) << length;
    }
    EXPECT_FALSE(isWhole(png(8192, 8193)));
    EXPECT_FALSE(isWhole(textBytes("\x89PNG\r\n\x1a\n")));
}

TEST(SavedPicture, mayBeAJpeg)
{
    for (BYTE const frame : {BYTE{0xC0}, BYTE{0xC1}, BYTE{0xC2}, BYTE{0xCF}})
        EXPECT_TRUE(isWhole(jpeg(9, 5, frame))) << int{frame};
    EXPECT_TRUE(isWhole(jpeg(8192, 8192)));
    EXPECT_FALSE(isWhole(jpeg(8192, 8193)));
    EXPECT_FALSE(isWhole(jpeg(40000, 300)));
    EXPECT_FALSE(isWhole(jpeg(0, 5)));
    EXPECT_FALSE(isWhole(jpeg(9, 0)));
    for (BYTE const table : {BYTE{0xC4}, BYTE{0xC8}, BYTE{0xCC}, BYTE{0xDB}})
        EXPECT_FALSE(isWhole(jpeg(9, 5, table))) << "a scan before its frame: " << int{table};
}

TEST(SavedPicture, mayBeAJpegThatBeginsWithOddBytes)
{
    EXPECT_FALSE(isWhole(Bytes{0xFF, 0xD8})) << "and nothing else";
    EXPECT_FALSE(isWhole(Bytes{0xFF, 0xD8, 0xFF, 0xFF, 0xFF}));
    EXPECT_TRUE(isWhole(Bytes{0xFF, 0xD8, 3, 4} + jpeg(9, 5))) << "decoders pass over what is no marker";
    EXPECT_FALSE(isWhole(Bytes{0xFF, 0xD8, 0xFF, 0xE1, 0, 1} + jpeg(9, 5))) << "shorter than its length";
    EXPECT_FALSE(isWhole(Bytes{0xFF, 0xD8, 0xFF, 0xE1, 0xFF, 0xFF} + jpeg(9, 5))) << "longer than the file";
}

TEST(SavedPicture, mayBeAGif)
{
    EXPECT_TRUE(isWhole(gifScreen(9, 5, 0x80) + kGifColours + gifFrame(9, 5, 0) + kGifEnd));
    EXPECT_TRUE(isWhole(gifScreen(9, 5, 0) + gifFrame(9, 5, 0x80, kGifColours) + kGifEnd))
        << "with colours of the frame's own";
    EXPECT_TRUE(isWhole(gifScreen(9, 5, 0x87) + 768 + gifFrame(9, 5, 0) + gifFrame(2, 2, 0) + kGifEnd));
    Bytes const comment{'!', 0xFE, 2, 'a', 'b', 1, ';', 0};
    EXPECT_TRUE(isWhole(gifScreen(9, 5, 0x80) + kGifColours + comment + gifFrame(9, 5, 0) + comment))
        << "without an end";
}

TEST(SavedPicture, hasAllPartsOfAGif)
{
    EXPECT_FALSE(isWhole(gifScreen(9, 5, 0) + gifFrame(9, 5, 0) + kGifEnd)) << "no colours";
    EXPECT_FALSE(isWhole(gifScreen(9, 5, 0x80) + kGifColours + kGifEnd)) << "no frame";
    EXPECT_FALSE(isWhole(gifScreen(9, 5, 0x80) + kGifColours + Bytes{7} + gifFrame(9, 5, 0)));
    for (WORD const length : {WORD{0}, WORD{0x8000}, WORD{0xFFFF}}) {
        EXPECT_FALSE(isWhole(gifScreen(length, 5, 0x80) + kGifColours + gifFrame(9, 5, 0))) << length;
        EXPECT_FALSE(isWhole(gifScreen(9, length, 0x80) + kGifColours + gifFrame(9, 5, 0))) << length;
        EXPECT_FALSE(isWhole(gifScreen(9, 5, 0x80) + kGifColours + gifFrame(length, 5, 0))) << length;
        EXPECT_FALSE(isWhole(gifScreen(9, 5, 0x80) + kGifColours + gifFrame(9, length, 0))) << length;
    }
    Bytes const whole = gifScreen(9, 5, 0x80) + kGifColours + gifFrame(9, 5, 0);
    for (size_t length = 4; length < whole.size(); ++length)
        EXPECT_FALSE(isWhole(Bytes(whole.begin(), whole.begin() + static_cast<ptrdiff_t>(length)))) << length;
}

TEST(SavedPicture, mayBeNone)
{
    EXPECT_TRUE(isWhole({}));
    EXPECT_TRUE(isWhole(saved({}))) << "with its mark twice";
}

TEST(SavedPicture, isOfNoOtherFormat)
{
    EXPECT_FALSE(isWhole(Bytes{0xD7, 0xCD, 0xC6, 0x9A} + 60)) << "a metafile";
    EXPECT_FALSE(isWhole(Bytes{1, 0, 0, 0} + 120)) << "an enhanced metafile";
    EXPECT_FALSE(isWhole(Bytes{0, 0, 3, 0, 1, 0} + 120));
    EXPECT_FALSE(isWhole(textBytes("\x89PNG") + 60));
    EXPECT_FALSE(isWhole(Bytes(60)));
    EXPECT_FALSE(isWhole(textBytes("B")));
}

TEST(SavedPicture, hasItsMarkAndNoMoreThanItsLength)
{
    Bytes const whole = saved(icon({smallImage()}));
    EXPECT_TRUE(isSafePicture(whole));
    EXPECT_TRUE(isSafePicture(whole + 5)) << "what stands behind it is not its own";
    for (size_t length = 0; length < whole.size(); ++length)
        ASSERT_FALSE(isSafePicture(Bytes(whole.begin(), whole.begin() + static_cast<ptrdiff_t>(length))))
            << length;
    EXPECT_FALSE(isSafePicture(icon({smallImage()}))) << "without its mark";
    Bytes forged = whole;
    forged[7] = 0xFF;
    EXPECT_FALSE(isSafePicture(forged));
}

/// A bitmap and an icon, each with room for a picture of 64 by 64 pixels.
bool isWholeAsEither(BITMAPINFOHEADER const& head)
{
    return isWhole(bitmap(bytesOf(head) + 2000, 20'000)) || isWhole(icon({bytesOf(head) + 22'000}));
}

TEST(SavedPicture, hasDimensionsThatItsBytesHaveRoomFor)
{
    EXPECT_TRUE(isWholeAsEither(header(64, 64, 32)));
    for (LONG const length : {0, -1, 0x400, 0x7FFF, 0x8000, 0x10000, 536'870'976, INT_MAX, INT_MIN}) {
        if (length >= 0 || length == INT_MIN) {
            EXPECT_FALSE(isWholeAsEither(header(64, length, 32))) << length;
        }
        EXPECT_FALSE(isWholeAsEither(header(length, 64, 32))) << length;
    }
}

TEST(SavedPicture, hasADepthThatThereIs)
{
    for (int const depth : {0, 2, 3, 5, 12, 31, 33, 64, 0x8000, 0xFFFF})
        EXPECT_FALSE(isWholeAsEither(header(2, 2, static_cast<WORD>(depth)))) << depth;
    BITMAPCOREHEADER core = {sizeof core, 2, 2, 1, 0xFFFF};
    EXPECT_FALSE(isWhole(bitmap(bytesOf(core) + 1000, 100)));
    core.bcBitCount = 0;
    EXPECT_FALSE(isWhole(bitmap(bytesOf(core) + 1000, 100)));
}

TEST(SavedPicture, hasAHeaderOfASizeThatThereIs)
{
    for (DWORD const size : {0U, 8U, 11U, 13U, 39U, 0xFFFFU, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
        BITMAPINFOHEADER head = header(2, 2, 24);
        head.biSize = size;
        EXPECT_FALSE(isWholeAsEither(head)) << size;
    }
}

TEST(SavedPicture, hasAllOfItsColours)
{
    for (DWORD const count : {5600U, 0x10000U, 0x3FFFFFFFU, 0x40000000U, 0x80000000U, 0xFFFFFFFFU}) {
        BITMAPINFOHEADER head = header(2, 2, 8);
        head.biClrUsed = count;
        EXPECT_FALSE(isWholeAsEither(head)) << count;
    }
}

TEST(SavedPicture, isCompressedInAWayThatThereIs)
{
    EXPECT_FALSE(isWholeAsEither(header(2, 2, 4, BI_RLE8)));
    EXPECT_FALSE(isWholeAsEither(header(2, 2, 8, BI_RLE4)));
    EXPECT_FALSE(isWholeAsEither(header(2, 2, 24, BI_JPEG)));
    EXPECT_FALSE(isWholeAsEither(header(2, 2, 24, BI_PNG)));
    EXPECT_FALSE(isWholeAsEither(header(2, 2, 24, 0xFFFF)));
    EXPECT_FALSE(isWhole(icon({bytesOf(header(2, 2, 8, BI_RLE8)) + 2000}))) << "icons are not";
}

TEST(SavedPicture, hasNotMorePixelsThanAScreenWhateverItIsCompressedTo)
{
    auto const compressed = [](LONG width, LONG height) {
        return isWhole(bitmap(bytesOf(header(width, height, 8, BI_RLE8)) + 1024, 2));
    };
    EXPECT_TRUE(compressed(8192, 8192));
    EXPECT_FALSE(compressed(8192, 8193));
    EXPECT_TRUE(compressed(0x7FFF, 1));
    EXPECT_FALSE(compressed(0x8000, 1));
    EXPECT_FALSE(compressed(1, 0x8000));
}

TEST(SavedPicture, hasItsBitsBehindItsOffset)
{
    Bytes file = bitmap(bytesOf(header(9, 5, 24)), 140);
    for (DWORD const offset : {55U, 195U, 0x7FFFFFFFU, 0xFFFFFFF0U, 0xFFFFFFFFU}) {
        memcpy(&file[10], &offset, sizeof offset);
        EXPECT_FALSE(isWhole(file)) << offset;
    }
    Bytes compressed = bitmap(bytesOf(header(9, 5, 8, BI_RLE8)) + 1024, 2);
    compressed[13] = 1;
    EXPECT_FALSE(isWhole(compressed));
}

TEST(SavedPicture, hasAnIconsDirectoryAndAllOfItsImages)
{
    Bytes const file = icon({smallImage()});
    auto const with = [&](size_t at, DWORD value, size_t size) {
        Bytes forged = file;
        memcpy(&forged[at], &value, size);
        return isWhole(forged);
    };
    constexpr size_t kCount = 4;
    constexpr size_t kSize = 14;
    constexpr size_t kOffset = 18;
    EXPECT_TRUE(with(kCount, 1, 2));
    for (DWORD const count : {0U, 2U, 0x7FFFU, 0xFFFFU})
        EXPECT_FALSE(with(kCount, count, 2)) << count;
    for (DWORD const size : {0U, 39U, 295U, 297U, 0x7FFFFFFFU, 0xFFFFFFFFU})
        EXPECT_FALSE(with(kSize, size, 4)) << size;
    for (DWORD const offset : {23U, 0x7FFFFFFFU, 0xFFFFFFF0U, 0xFFFFFFFFU})
        EXPECT_FALSE(with(kOffset, offset, 4)) << offset;
}

} // namespace
} // namespace quillet

// GIF, JPEG and PNG: the frame that tells their size. What is packed inside, their decoders look at.
#include "saving/PictureFormats.h"

namespace quillet {

namespace {

/// Takes a file's numbers and blocks one after the other; numbers behind the end are 0.
class Walk {
public:
    explicit Walk(PictureBytes file) noexcept : m_rest(file) {}

    bool isAtEnd() const noexcept { return m_rest.empty(); }
    /// Whether there was so much.
    bool skip(size_t count) noexcept
    {
        bool const isThere = count <= m_rest.size();
        m_rest = m_rest.subspan(isThere ? count : m_rest.size());
        return isThere;
    }
    unsigned byte() noexcept
    {
        unsigned const value = m_rest.empty() ? 0 : m_rest.front();
        skip(1);
        return value;
    }
    unsigned littleEndian() noexcept
    {
        unsigned const low = byte();
        return byte() << 8 | low;
    }
    unsigned bigEndian() noexcept
    {
        unsigned const high = byte();
        return high << 8 | byte();
    }
    unsigned longBigEndian() noexcept
    {
        unsigned const high = bigEndian();
        return high << 16 | bigEndian();
    }

private:
    PictureBytes m_rest;
};

// GIF.

bool skipColours(Walk& walk, unsigned flags) noexcept { return walk.skip(size_t{6} << (flags & 7)); }

/// Skips blocks of up to 255 bytes, each behind its length, to the empty one that ends them.
bool skipBlocks(Walk& walk) noexcept
{
    while (!walk.isAtEnd()) {
        unsigned const length = walk.byte();
        if (length == 0)
            return true;
        if (!walk.skip(length))
            return false;
    }
    return false;
}

constexpr unsigned kHasColours = 0x80;

/// A frame needs colours, its own or the file's: without any, decoders may read them through a null pointer.
bool isSafeFrame(Walk& walk, bool hasColours) noexcept
{
    walk.skip(4); // left and top
    unsigned const width = walk.littleEndian();
    unsigned const height = walk.littleEndian();
    unsigned const flags = walk.byte();
    if (flags & kHasColours)
        hasColours = skipColours(walk, flags);
    return hasColours && isHonestSize(width, height) && walk.skip(1) && skipBlocks(walk);
}

} // namespace

bool isSafeGif(PictureBytes file) noexcept
{
    constexpr unsigned kFrame = 0x2C;
    constexpr unsigned kExtension = 0x21;
    constexpr unsigned kEnd = 0x3B;
    Walk walk(file);
    walk.skip(6); // mark and version
    unsigned const width = walk.littleEndian();
    unsigned const height = walk.littleEndian();
    unsigned const flags = walk.byte();
    walk.skip(2);
    bool const hasColours = (flags & kHasColours) != 0;
    if (!isHonestSize(width, height) || (hasColours && !skipColours(walk, flags)))
        return false;
    int frames = 0;
    while (!walk.isAtEnd())
        switch (walk.byte()) {
        case kFrame:
            if (!isSafeFrame(walk, hasColours))
                return false;
            ++frames;
            break;
        case kExtension:
            if (!walk.skip(1) || !skipBlocks(walk))
                return false;
            break;
        case kEnd:
            return frames > 0;
        default:
            return false;
        }
    return frames > 0; // some are without their end
}

namespace {

// JPEG.

/// The next marker; what stands before it is passed over, as decoders do. 0 at the end.
unsigned nextMarker(Walk& walk) noexcept
{
    while (!walk.isAtEnd()) {
        unsigned marker = walk.byte();
        if (marker != 0xFF)
            continue;
        while (marker == 0xFF) // any number of them
            marker = walk.byte();
        if (marker != 0)
            return marker;
    }
    return 0;
}

constexpr unsigned kStartOfScan = 0xDA;

bool isStartOfFrame(unsigned marker) noexcept
{
    // Among these numbers are tables, too: C4 Huffman's, CC arithmetic, and C8, which nobody uses.
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

/// Markers without a length.
bool isBare(unsigned marker) noexcept { return marker == 1 || (marker >= 0xD0 && marker <= 0xD8); }

} // namespace

bool isSafeJpeg(PictureBytes file) noexcept
{
    Walk walk(file);
    for (unsigned marker = nextMarker(walk); marker != 0 && marker != kStartOfScan;
         marker = nextMarker(walk)) {
        if (isBare(marker))
            continue;
        unsigned const length = walk.bigEndian();
        if (isStartOfFrame(marker)) {
            walk.skip(1); // bits of a colour
            unsigned const height = walk.bigEndian();
            return isHonestSize(walk.bigEndian(), height);
        }
        if (length < 2 || !walk.skip(length - 2))
            return false;
    }
    return false;
}

bool isSafePng(PictureBytes file) noexcept
{
    Walk walk(file);
    walk.skip(16); // mark, and what the first block begins with
    unsigned const width = walk.longBigEndian();
    unsigned const height = walk.longBigEndian();
    return isHonestSize(width, height);
}

} // namespace quillet

// Fuzzes the check of saved pictures: a bitmap or an icon that passes, a loader that believes every word of
// it can load without a step outside, and without a number that overflows in 32 bits.
#include "Hold.h"
#include "saving/SavedPicture.h"

#include <sanitizer/asan_interface.h>

#include <cstdlib>
#include <cstring>

namespace quillet::fuzz {

namespace {

template <class T> T read(BYTE const* from)
{
    T value;
    std::memcpy(&value, from, sizeof value);
    return value;
}

void touch(BYTE const* from, int count)
{
    hold(count >= 0 && !__asan_region_is_poisoned(const_cast<BYTE*>(from), static_cast<size_t>(count)),
         "what is read lies within the data");
}

struct Image {
    int header = 0; ///< bytes, with masks and colours
    int width = 0;
    int height = 0;
    int depth = 0;
    bool isCompressed = false;

    int bytes(int rows, int bits) const { return (width * bits + 31) / 32 * 4 * rows; }
};

Image imageAt(BYTE const* at)
{
    int const size = read<int>(at);
    if (size == 12) {
        int const depth = read<WORD>(at + 10);
        return {size + (depth <= 8 ? (1 << depth) * 3 : 0), read<WORD>(at + 4), read<WORD>(at + 6), depth};
    }
    int const depth = read<WORD>(at + 14);
    int const compression = read<int>(at + 16);
    int const told = read<int>(at + 32);
    int const colours = told ? told : depth <= 8 ? 1 << depth : 0;
    int const masks = compression == BI_BITFIELDS && size == 40 ? 3 : 0;
    return {size + (masks + colours) * 4, read<int>(at + 4), std::abs(read<int>(at + 8)), depth,
            compression == BI_RLE8 || compression == BI_RLE4};
}

/// As a loader copies it into a bitmap of 32 bits a pixel.
void loadBits(BYTE const* at, BYTE const* bits, Image const& image, int rows, bool hasMask)
{
    touch(at, image.header);
    hold(image.width * rows * 4 >= 0, "a bitmap has a size");
    if (!image.isCompressed)
        touch(bits, image.bytes(rows, image.depth) + (hasMask ? image.bytes(rows, 1) : 0));
}

void loadIcon(BYTE const* file)
{
    int const count = read<WORD>(file + 4);
    hold(count > 0, "an icon has an image");
    for (int i = 0; i < count; ++i) {
        BYTE const* const entry = file + 6 + 16 * i;
        BYTE const* const at = file + read<int>(entry + 12);
        touch(at, read<int>(entry + 8));
        if (*at == 0x89) // a PNG
            continue;
        Image const image = imageAt(at);
        loadBits(at, at + image.header, image, image.height / 2, image.depth < 32);
    }
}

void load(BYTE const* saved)
{
    BYTE const* file = saved + 8;
    int length = read<int>(saved + 4);
    while (length >= 8 && std::memcmp(file, "lt\0\0", 4) == 0) {
        length = read<int>(file + 4);
        file += 8;
    }
    touch(file, length);
    if (length == 0)
        return;
    if (file[0] == 'B') {
        BYTE const* const at = file + 14;
        Image const image = imageAt(at);
        loadBits(at, file + read<int>(file + 10), image, image.height, false);
    }
    if (file[0] == 0)
        loadIcon(file);
}

} // namespace

} // namespace quillet::fuzz

extern "C" int LLVMFuzzerTestOneInput(BYTE const* data, size_t size)
{
    if (quillet::isSafePicture({data, size}))
        quillet::fuzz::load(data);
    return 0;
}

// What a picture object saves: a mark, a length, and a file.
#include "saving/SavedPicture.h"

#include "saving/PictureFormats.h"

namespace quillet {

namespace {

using namespace std::string_view_literals;

struct Format {
    std::string_view mark;
    bool (*isSafe)(PictureBytes file) noexcept;
};

constexpr Format kFormats[] = {
    {"BM"sv, isSafeBitmap}, {"\0\0\1\0"sv, isSafeIcon}, {"\0\0\2\0"sv, isSafeIcon},
    {"GIF8"sv, isSafeGif},  {"\xFF\xD8"sv, isSafeJpeg}, {kPngMark, isSafePng},
};

bool isSafeFile(PictureBytes file) noexcept
{
    for (Format const& format : kFormats)
        if (beginsWith(file, format.mark))
            return format.isSafe(file);
    return file.empty();
}

} // namespace

bool isSafePicture(std::span<BYTE const> saved) noexcept
{
    constexpr auto kMark = "lt\0\0"sv;
    PictureBytes file = saved;
    do { // some forms have the mark twice
        auto const length = beginsWith(file, kMark) ? valueAt<DWORD>(file, kMark.size()) : std::nullopt;
        if (!length || *length > file.size() - kMark.size() - sizeof *length)
            return false;
        file = file.subspan(kMark.size() + sizeof *length, *length);
    } while (beginsWith(file, kMark));
    return isSafeFile(file);
}

} // namespace quillet

// What a picture object saves: a mark, a length, and a file.
#include "saving/SavedPicture.h"

#include "saving/PictureFormats.h"

namespace quillet {

namespace {

using namespace std::string_view_literals;

struct Format {
    std::string_view mark;
    bool (*isWhole)(PictureBytes file) noexcept;
};

constexpr Format kFormats[] = {
    {"BM"sv, isWholeBitmap}, {"\0\0\1\0"sv, isWholeIcon}, {"\0\0\2\0"sv, isWholeIcon},
    {"GIF8"sv, isWholeGif},  {"\xFF\xD8"sv, isWholeJpeg}, {kPngMark, isWholePng},
};

bool isWholeFile(PictureBytes file) noexcept
{
    for (Format const& format : kFormats)
        if (beginsWith(file, format.mark))
            return format.isWhole(file);
    return file.empty();
}

} // namespace

bool isWholePicture(std::span<BYTE const> saved) noexcept
{
    constexpr auto kMark = "lt\0\0"sv;
    PictureBytes file = saved;
    do { // some forms have the mark twice
        auto const length = beginsWith(file, kMark) ? valueAt<DWORD>(file, kMark.size()) : std::nullopt;
        if (!length || *length > file.size() - kMark.size() - sizeof *length)
            return false;
        file = file.subspan(kMark.size() + sizeof *length, *length);
    } while (beginsWith(file, kMark));
    return isWholeFile(file);
}

} // namespace quillet

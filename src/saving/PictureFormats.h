// Whether picture files are whole, a function for each format.
#pragma once

#include <windows.h>

#include <cstdint>
#include <cstring>
#include <optional>
#include <span>
#include <string_view>

namespace quillet {

using PictureBytes = std::span<BYTE const>;

/// Each begins with the mark of its format.
bool isWholeBitmap(PictureBytes file) noexcept;
bool isWholeIcon(PictureBytes file) noexcept; ///< a cursor, too
bool isWholeGif(PictureBytes file) noexcept;
bool isWholeJpeg(PictureBytes file) noexcept;
bool isWholePng(PictureBytes file) noexcept;

inline constexpr std::string_view kPngMark{"\x89PNG\r\n\x1A\n", 8};

inline bool beginsWith(PictureBytes bytes, std::string_view mark) noexcept
{
    return bytes.size() >= mark.size() && std::memcmp(bytes.data(), mark.data(), mark.size()) == 0;
}

/// The value at an offset; nothing where it does not lie within the bytes.
template <class T> std::optional<T> valueAt(PictureBytes bytes, size_t at) noexcept
{
    if (at > bytes.size() || bytes.size() - at < sizeof(T))
        return std::nullopt;
    T value;
    std::memcpy(&value, bytes.data() + at, sizeof value);
    return value;
}

/// In pixels. Of so many, system loaders can still count the bytes in 32 bits; no button shows more.
constexpr bool isHonestSize(std::uint64_t width, std::uint64_t height) noexcept
{
    constexpr std::uint64_t kLongest = 0x7FFF; // GDI's coordinates
    constexpr std::uint64_t kMost = 64u << 20;
    return width > 0 && width <= kLongest && height > 0 && height <= kLongest && width * height <= kMost;
}

} // namespace quillet

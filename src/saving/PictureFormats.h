// Whether picture files are safe to hand to the system, a function for each format.
#pragma once

#include <windows.h>

#include <cstdint>
#include <cstring>
#include <optional>
#include <span>
#include <string_view>

namespace quillet {

using PictureBytes = std::span<BYTE const>;

/// The file begins with the mark of its format; whether every size and place that it names lies within it.
bool isSafeBitmap(PictureBytes file) noexcept;
bool isSafeIcon(PictureBytes file) noexcept; ///< a cursor, too
bool isSafeGif(PictureBytes file) noexcept;
bool isSafeJpeg(PictureBytes file) noexcept;
bool isSafePng(PictureBytes file) noexcept;

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

/// Whether a picture of that many pixels is meant: no button shows more than the limits here, and within
/// them system loaders can count its bytes in 32 bits.
constexpr bool isHonestSize(std::uint64_t width, std::uint64_t height) noexcept
{
    constexpr std::uint64_t kLongest = 0x7FFF; // GDI's coordinates
    constexpr std::uint64_t kMost = 64u << 20;
    return width > 0 && width <= kLongest && height > 0 && height <= kLongest && width * height <= kMost;
}

} // namespace quillet

// Text between its two codings and UTF-16: Windows-1252 and UTF-8.
#include <windows.h>

#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

constexpr UINT kWindows1252 = 1252;
constexpr std::uint32_t kReplacement = 0xFFFD;

/// 0x80 to 0x9F; what the code page leaves free stands for itself.
constexpr wchar_t kUpperControls[] = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                      0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                      0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                      0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

wchar_t fromWindows1252(unsigned char c) noexcept
{
    return c >= 0x80 && c < 0xA0 ? kUpperControls[c - 0x80] : static_cast<wchar_t>(c);
}

char toWindows1252(wchar_t c) noexcept
{
    if (c < 0x80 || (c >= 0xA0 && c < 0x100))
        return static_cast<char>(c);
    for (unsigned i = 0; i < std::size(kUpperControls); ++i)
        if (kUpperControls[i] == c)
            return static_cast<char>(0x80 + i);
    return '?';
}

void append(std::wstring& text, std::uint32_t code)
{
    if (code < 0x10000) {
        text += static_cast<wchar_t>(code);
        return;
    }
    text += static_cast<wchar_t>(0xD800 + ((code - 0x10000) >> 10));
    text += static_cast<wchar_t>(0xDC00 + ((code - 0x10000) & 0x3FF));
}

void append(std::string& bytes, std::uint32_t code)
{
    static constexpr unsigned char kLead[] = {0, 0, 0xC0, 0xE0, 0xF0};
    int const size = code < 0x80 ? 1 : code < 0x800 ? 2 : code < 0x10000 ? 3 : 4;
    if (size == 1) {
        bytes += static_cast<char>(code);
        return;
    }
    bytes += static_cast<char>(kLead[size] | (code >> (6 * (size - 1))));
    for (int i = size - 2; i >= 0; --i)
        bytes += static_cast<char>(0x80 | ((code >> (6 * i)) & 0x3F));
}

/// How many bytes follow a first byte of UTF-8, and the least code that they may stand for.
struct Form {
    int following;
    std::uint32_t least;
    std::uint32_t first;
};

Form formOf(unsigned char c) noexcept
{
    if (c < 0x80)
        return {0, 0, c};
    if (c >= 0xC2 && c < 0xE0)
        return {1, 0x80, c & 0x1Fu};
    if (c >= 0xE0 && c < 0xF0)
        return {2, 0x800, c & 0x0Fu};
    if (c >= 0xF0 && c < 0xF5)
        return {3, 0x10000, c & 0x07u};
    return {0, 0, kReplacement};
}

std::wstring fromUtf8(char const* bytes, int size)
{
    std::wstring text;
    for (int at = 0; at < size;) {
        Form const form = formOf(static_cast<unsigned char>(bytes[at++]));
        std::uint32_t code = form.first;
        int left = form.following;
        for (; left > 0 && at < size && (bytes[at] & 0xC0) == 0x80; --left)
            code = code << 6 | (static_cast<unsigned char>(bytes[at++]) & 0x3Fu);
        bool const isWhole = left == 0 && code >= form.least && code < 0x110000 && (code & ~0x7FFu) != 0xD800;
        append(text, isWhole ? code : kReplacement);
    }
    return text;
}

std::string toUtf8(wchar_t const* text, int count)
{
    std::string bytes;
    for (int at = 0; at < count; ++at) {
        std::uint32_t code = text[at];
        bool const isPair = (code & ~0x3FFu) == 0xD800 && at + 1 < count && (text[at + 1] & ~0x3FF) == 0xDC00;
        if (isPair)
            code = 0x10000 + ((code & 0x3FF) << 10) + (text[++at] & 0x3FFu);
        append(bytes, (code & ~0x7FFu) == 0xD800 ? kReplacement : code);
    }
    return bytes;
}

/// A too small target is an error, and nothing of it may be relied on.
template <class Text, class Character> int answer(Text const& text, Character* target, int size)
{
    int const needed = static_cast<int>(text.size());
    if (size == 0)
        return needed;
    if (size < needed)
        return 0;
    for (int i = 0; i < needed; ++i)
        target[i] = text[static_cast<std::size_t>(i)];
    return needed;
}

} // namespace

INT WINAPI MultiByteToWideChar(UINT codePage, DWORD, LPCSTR bytes, INT size, LPWSTR target, INT targetSize)
{
    if (size <= 0) // the readers never ask with a terminator
        return 0;
    if (codePage == CP_UTF8)
        return answer(fromUtf8(bytes, size), target, targetSize);
    if (codePage != kWindows1252)
        std::abort();
    std::wstring text;
    for (int i = 0; i < size; ++i)
        text += fromWindows1252(static_cast<unsigned char>(bytes[i]));
    return answer(text, target, targetSize);
}

INT WINAPI WideCharToMultiByte(UINT codePage, DWORD, LPCWSTR text, INT count, LPSTR target, INT targetSize,
                               LPCSTR, LPBOOL)
{
    if (count <= 0)
        return 0;
    if (codePage == CP_UTF8)
        return answer(toUtf8(text, count), target, targetSize);
    if (codePage != kWindows1252)
        std::abort();
    std::string bytes;
    for (int i = 0; i < count; ++i)
        bytes += toWindows1252(text[i]);
    return answer(bytes, target, targetSize);
}

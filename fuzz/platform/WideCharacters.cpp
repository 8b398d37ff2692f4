// The C library's functions for wide characters, for characters of 16 bits. The system's own count in 32
// bits, and the standard library's templates call these by name.
#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <string>

extern "C" {

std::size_t wcslen(wchar_t const* text) noexcept
{
    std::size_t length = 0;
    while (text[length])
        ++length;
    return length;
}

wchar_t* wmemcpy(wchar_t* target, wchar_t const* source, std::size_t count) noexcept
{
    for (std::size_t i = 0; i < count; ++i)
        target[i] = source[i];
    return target;
}

wchar_t* wmemmove(wchar_t* target, wchar_t const* source, std::size_t count) noexcept
{
    if (target <= source)
        return wmemcpy(target, source, count);
    for (std::size_t i = count; i > 0; --i)
        target[i - 1] = source[i - 1];
    return target;
}

wchar_t* wmemset(wchar_t* target, wchar_t character, std::size_t count) noexcept
{
    for (std::size_t i = 0; i < count; ++i)
        target[i] = character;
    return target;
}

int wmemcmp(wchar_t const* a, wchar_t const* b, std::size_t count) noexcept
{
    for (std::size_t i = 0; i < count; ++i)
        if (a[i] != b[i])
            return a[i] < b[i] ? -1 : 1;
    return 0;
}

wchar_t* wmemchr(wchar_t const* text, wchar_t character, std::size_t count) noexcept
{
    for (std::size_t i = 0; i < count; ++i)
        if (text[i] == character)
            return const_cast<wchar_t*>(text + i);
    return nullptr;
}

/// For formats of numbers alone.
int vswprintf(wchar_t* target, std::size_t size, wchar_t const* format, std::va_list arguments) noexcept
{
    std::string narrow;
    for (; *format; ++format)
        narrow += static_cast<char>(*format);
    char text[512];
    int const length = std::vsnprintf(text, sizeof text, narrow.c_str(), arguments);
    if (length < 0 || static_cast<std::size_t>(length) >= size)
        return -1;
    for (int i = 0; i <= length; ++i)
        target[i] = static_cast<wchar_t>(text[i]);
    return length;
}

int swprintf(wchar_t* target, std::size_t size, wchar_t const* format, ...) noexcept
{
    std::va_list arguments;
    va_start(arguments, format);
    int const length = vswprintf(target, size, format, arguments);
    va_end(arguments);
    return length;
}

} // extern "C"

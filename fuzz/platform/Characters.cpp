// What the system knows of characters: their case, and which are letters. Case beyond Latin-1 is left alone,
// and everything beyond it counts as a letter.
#include <windows.h>

namespace {

wchar_t upper(wchar_t c) noexcept
{
    bool const isLower = (c >= L'a' && c <= L'z') || (c >= 0xE0 && c < 0xFF && c != 0xF7);
    return static_cast<wchar_t>(isLower ? c - 0x20 : c);
}

} // namespace

INT WINAPI CompareStringOrdinal(WCHAR const* a, INT sizeOfA, WCHAR const* b, INT sizeOfB, BOOL ignoreCase)
{
    for (INT i = 0; i < sizeOfA && i < sizeOfB; ++i) {
        wchar_t const left = ignoreCase ? upper(a[i]) : a[i];
        wchar_t const right = ignoreCase ? upper(b[i]) : b[i];
        if (left != right)
            return left < right ? CSTR_LESS_THAN : CSTR_GREATER_THAN;
    }
    if (sizeOfA == sizeOfB)
        return CSTR_EQUAL;
    return sizeOfA < sizeOfB ? CSTR_LESS_THAN : CSTR_GREATER_THAN;
}

BOOL WINAPI IsCharAlphaNumericW(WCHAR c)
{
    if (c < 0x80)
        return (c >= L'0' && c <= L'9') || (upper(c) >= L'A' && upper(c) <= L'Z');
    return c == 0xAA || c == 0xB5 || c == 0xBA || (c >= 0xC0 && c != 0xD7 && c != 0xF7);
}

// Numbers as text.
#include "base/DecimalText.h"

#include <windows.h>

namespace quillet {

std::wstring decimalText(long number)
{
    wchar_t text[12]; // Windows writes it: the language's own way brings a formatter of doubles with it
    return {text, static_cast<size_t>(::wsprintfW(text, L"%ld", number))};
}

} // namespace quillet

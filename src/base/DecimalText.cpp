// Numbers as text.
#include "base/DecimalText.h"

#include <windows.h>

namespace quillet {

std::wstring decimalText(long number)
{
    wchar_t text[12]; // not std::to_wstring, with which a formatter of doubles is linked in
    return {text, static_cast<size_t>(::wsprintfW(text, L"%ld", number))};
}

} // namespace quillet

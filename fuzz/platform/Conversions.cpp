// VariantChangeType for what the readers ask for: numbers, flags and texts. Everything else does not convert.
#include <windows.h>

#include <oleauto.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>
#include <string_view>

namespace {

/// Holds every integer of 64 bits and every double exactly.
using Number = long double;
static_assert(std::numeric_limits<Number>::digits >= 64);

constexpr Number kCurrencyUnits = 10000;

std::string_view withoutBlanks(std::string_view text) noexcept
{
    std::size_t const first = text.find_first_not_of(" \t");
    return first == text.npos ? std::string_view()
                              : text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

bool isDigit(char c) noexcept { return c >= '0' && c <= '9'; }

std::size_t skipDigits(std::string_view text, std::size_t at) noexcept
{
    while (at < text.size() && isDigit(text[at]))
        ++at;
    return at;
}

/// Whether the text is a decimal number: sign, digits with a point among them, exponent.
bool isDecimal(std::string_view text) noexcept
{
    std::size_t at = !text.empty() && (text[0] == '-' || text[0] == '+') ? 1 : 0;
    std::size_t const whole = skipDigits(text, at);
    std::size_t digits = whole - at;
    at = whole;
    if (at < text.size() && text[at] == '.') {
        std::size_t const fraction = skipDigits(text, at + 1);
        digits += fraction - at - 1;
        at = fraction;
    }
    if (digits == 0)
        return false;
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        ++at;
        at += at < text.size() && (text[at] == '-' || text[at] == '+') ? 1 : 0;
        std::size_t const exponent = skipDigits(text, at);
        if (exponent == at)
            return false;
        at = exponent;
    }
    return at == text.size();
}

HRESULT numberOfText(BSTR text, Number& number)
{
    std::string narrow;
    for (UINT i = 0; i < ::SysStringLen(text); ++i)
        narrow += text[i] > 0 && text[i] < 0x80 ? static_cast<char>(text[i]) : '?';
    std::string const digits(withoutBlanks(narrow));
    if (!isDecimal(digits))
        return DISP_E_TYPEMISMATCH;
    double const value = std::strtod(digits.c_str(), nullptr);
    number = value;
    return std::isfinite(value) ? S_OK : DISP_E_OVERFLOW;
}

HRESULT numberOf(VARIANT const& value, Number& number)
{
    switch (value.vt) {
    case VT_EMPTY:
        number = 0;
        return S_OK;
    case VT_I1:
        number = static_cast<signed char>(value.bVal);
        return S_OK;
    case VT_UI1:
        number = value.bVal;
        return S_OK;
    case VT_I2:
    case VT_BOOL:
        number = value.iVal;
        return S_OK;
    case VT_UI2:
        number = value.uiVal;
        return S_OK;
    case VT_I4:
    case VT_INT:
        number = value.lVal;
        return S_OK;
    case VT_UI4:
    case VT_UINT:
        number = value.ulVal;
        return S_OK;
    case VT_I8:
        number = value.llVal;
        return S_OK;
    case VT_UI8:
        number = value.ullVal;
        return S_OK;
    case VT_R4:
        number = value.fltVal;
        return S_OK;
    case VT_R8:
    case VT_DATE:
        number = value.dblVal;
        return S_OK;
    case VT_CY:
        number = static_cast<Number>(value.llVal) / kCurrencyUnits;
        return S_OK;
    case VT_BSTR:
        return numberOfText(value.bstrVal, number);
    default:
        return DISP_E_TYPEMISMATCH;
    }
}

/// The nearest integer, halves to the even neighbour.
template <class Integer> HRESULT integerOf(VARIANT const& value, Integer& integer)
{
    Number number = 0;
    HRESULT const result = numberOf(value, number);
    if (FAILED(result))
        return result;
    Number const whole = std::rint(number);
    using Limits = std::numeric_limits<Integer>;
    if (!(whole >= Number{Limits::min()} && whole <= Number{Limits::max()}))
        return DISP_E_OVERFLOW;
    integer = static_cast<Integer>(whole);
    return S_OK;
}

/// "True" and "False" are flags whatever their case; every other text has to be a number.
HRESULT flagOf(VARIANT const& value, VARIANT_BOOL& flag)
{
    if (value.vt == VT_BSTR) {
        std::string lower;
        for (UINT i = 0; i < ::SysStringLen(value.bstrVal); ++i)
            lower += value.bstrVal[i] < 0x80 ? static_cast<char>(value.bstrVal[i] | 0x20) : '?';
        if (lower == "true" || lower == "false") {
            flag = lower == "true" ? VARIANT_TRUE : VARIANT_FALSE;
            return S_OK;
        }
    }
    Number number = 0;
    HRESULT const result = numberOf(value, number);
    if (SUCCEEDED(result))
        flag = number == 0 ? VARIANT_FALSE : VARIANT_TRUE;
    return result;
}

HRESULT textOf(VARIANT const& value, BSTR& text)
{
    if (value.vt == VT_BSTR) {
        text = ::SysAllocStringLen(value.bstrVal, ::SysStringLen(value.bstrVal));
        return text ? S_OK : E_OUTOFMEMORY;
    }
    Number number = 0;
    HRESULT const result = numberOf(value, number);
    if (FAILED(result))
        return result;
    char narrow[64] = "";
    if (value.vt != VT_EMPTY)
        std::snprintf(narrow, sizeof narrow, value.vt == VT_R8 ? "%.15LG" : "%.20LG", number);
    std::wstring wide;
    for (char const* c = narrow; *c; ++c)
        wide += static_cast<wchar_t>(*c);
    text = ::SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
    return text ? S_OK : E_OUTOFMEMORY;
}

HRESULT converted(VARIANT const& from, VARTYPE type, VARIANT& to)
{
    switch (type) {
    case VT_I2:
        return integerOf(from, to.iVal);
    case VT_I4:
        return integerOf(from, to.lVal);
    case VT_UI4:
        return integerOf(from, to.ulVal);
    case VT_BOOL:
        return flagOf(from, to.boolVal);
    case VT_BSTR:
        return textOf(from, to.bstrVal);
    default:
        return DISP_E_BADVARTYPE;
    }
}

} // namespace

HRESULT WINAPI VariantChangeType(VARIANT* target, VARIANT const* source, USHORT, VARTYPE type)
{
    VARIANT plain;
    ::VariantInit(&plain);
    HRESULT result = ::VariantCopyInd(&plain, source);
    if (FAILED(result))
        return result;
    VARIANT made;
    ::VariantInit(&made);
    result = plain.vt == type ? ::VariantCopy(&made, &plain) : converted(plain, type, made);
    ::VariantClear(&plain);
    if (FAILED(result))
        return result;
    made.vt = type;
    ::VariantClear(target);
    *target = made;
    return S_OK;
}

// One value of a form file, read from what stands behind the equals sign.
#include "gallery/form/FormValue.h"

#include "gallery/form/FormText.h"
#include "gallery/form/Names.h"

#include <charconv>
#include <cstdint>
#include <limits>
#include <optional>

namespace quillet::gallery {

namespace {

using Reading = std::variant<FormValue, ValueFault>;

constexpr ValueFault kNoValue{L"no value stands behind the equals sign"};
constexpr ValueFault kNotAValue{L"this is neither a number nor a string"};
constexpr ValueFault kNotClosed{L"the string is not closed"};
constexpr ValueFault kTrailing{L"something stands behind the value"};
constexpr ValueFault kBadHex{L"a hexadecimal number has one to eight digits"};
constexpr ValueFault kOutOfRange{L"the number is too large"};

constexpr std::size_t kHexDigits = 8;
/// What may mark a number's type in the language that the forms come from.
constexpr std::wstring_view kTypeSuffixes = L"%&!#@";
/// What an unquoted value may begin with: shortcuts (^S, +{F1}), identifiers and dates.
constexpr std::wstring_view kUnquotedStarts = L"^+%{#";

bool isDigit(wchar_t c) noexcept { return c >= L'0' && c <= L'9'; }

bool isHexDigit(wchar_t c) noexcept
{
    return isDigit(c) || (c >= L'a' && c <= L'f') || (c >= L'A' && c <= L'F');
}

std::size_t countWhile(std::wstring_view text, bool (*predicate)(wchar_t) noexcept) noexcept
{
    std::size_t count = 0;
    while (count < text.size() && predicate(text[count]))
        ++count;
    return count;
}

/// The value of one to eight hexadecimal digits.
std::uint32_t hexValue(std::wstring_view digits) noexcept
{
    std::uint32_t value = 0;
    for (wchar_t const c : digits)
        value = value * 16 + static_cast<std::uint32_t>(isDigit(c) ? c - L'0' : (c | 0x20) - L'a' + 10);
    return value;
}

std::optional<std::uint32_t> takeHex(std::wstring_view& text) noexcept
{
    std::size_t const count = countWhile(text, isHexDigit);
    if (count == 0 || count > kHexDigits)
        return std::nullopt;
    std::uint32_t const value = hexValue(text.substr(0, count));
    text.remove_prefix(count);
    return value;
}

/// value, if nothing but a comment stands behind it.
Reading ended(FormValue value, std::wstring_view rest)
{
    std::wstring_view const left = trimmed(rest);
    if (!left.empty() && left.front() != L'\'')
        return kTrailing;
    return value;
}

Reading readHex(std::wstring_view text)
{
    text.remove_prefix(2);
    std::optional<std::uint32_t> const value = takeHex(text);
    if (!value)
        return kBadHex;
    if (text.starts_with(L'&'))
        text.remove_prefix(1);
    return ended(static_cast<long>(static_cast<std::int32_t>(*value)), text);
}

Reading readQuoted(std::wstring_view text)
{
    bool const isText = text.front() == L'$';
    if (isText)
        text.remove_prefix(1);
    std::variant<std::wstring, ValueFault> quoted = takeQuoted(text);
    if (auto const* const fault = std::get_if<ValueFault>(&quoted))
        return *fault;
    std::wstring& inside = std::get<std::wstring>(quoted);
    if (!text.starts_with(L':'))
        return isText ? Reading(kNotAValue) : ended(std::move(inside), text);
    text.remove_prefix(1);
    std::optional<std::uint32_t> const offset = takeHex(text);
    if (!offset)
        return kBadHex;
    return ended(ResourceReference{std::move(inside), *offset, isText}, text);
}

bool isNumberPart(wchar_t c) noexcept
{
    return isDigit(c) || c == L'.' || c == L'-' || c == L'+' || c == L'e' || c == L'E';
}

/// The whole of digits as a number: an integer where it is one and fits into 32 bits.
std::variant<FormValue, ValueFault> numberOf(std::string const& digits)
{
    char const* const begin = digits.data();
    char const* const end = begin + digits.size();
    long whole = 0;
    if (auto const [last, error] = std::from_chars(begin, end, whole); error == std::errc() && last == end)
        return FormValue(whole);
    double real = 0;
    auto const [last, error] = std::from_chars(begin, end, real);
    if (error == std::errc::result_out_of_range)
        return kOutOfRange;
    if (error != std::errc() || last != end)
        return kNotAValue;
    return FormValue(real);
}

Reading readNumber(std::wstring_view text)
{
    if (text.starts_with(L'+'))
        text.remove_prefix(1);
    std::size_t const count = countWhile(text, isNumberPart);
    std::wstring_view rest = text.substr(count);
    std::variant<FormValue, ValueFault> const number =
        numberOf(std::string(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(count)));
    if (auto const* const fault = std::get_if<ValueFault>(&number))
        return *fault;
    if (!rest.empty() && kTypeSuffixes.find(rest.front()) != std::wstring_view::npos)
        rest.remove_prefix(1);
    return ended(std::get<FormValue>(number), rest);
}

bool beginsNumber(std::wstring_view text) noexcept
{
    if (text.front() == L'-' || text.front() == L'+')
        text.remove_prefix(1);
    return !text.empty() && (isDigit(text.front()) || text.front() == L'.');
}

} // namespace

std::variant<std::wstring, ValueFault> takeQuoted(std::wstring_view& text)
{
    std::wstring inside;
    for (std::size_t i = 1; i < text.size(); ++i) {
        if (text[i] != L'"') {
            inside += text[i];
            continue;
        }
        bool const doubled = i + 1 < text.size() && text[i + 1] == L'"';
        if (!doubled) {
            text.remove_prefix(i + 1);
            return inside;
        }
        inside += text[i++];
    }
    return kNotClosed;
}

std::variant<FormValue, ValueFault> readFormValue(std::wstring_view text)
{
    text = trimmed(text);
    if (text.empty() || text.front() == L'\'')
        return kNoValue;
    if (text.front() == L'"' || text.starts_with(L"$\""))
        return readQuoted(text);
    if (sameName(text.substr(0, 2), L"&H"))
        return readHex(text);
    if (beginsNumber(text))
        return readNumber(text);
    std::wstring_view const word = trimmed(text.substr(0, text.find(L'\'')));
    if (sameName(word, L"True"))
        return FormValue(-1L);
    if (sameName(word, L"False"))
        return FormValue(0L);
    if (kUnquotedStarts.find(text.front()) != std::wstring_view::npos)
        return FormValue(Unquoted{std::wstring(text)});
    return kNotAValue;
}

} // namespace quillet::gallery

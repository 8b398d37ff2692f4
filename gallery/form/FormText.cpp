// The text of a form file: its decoding, and its lines one after the other.
#include "gallery/form/FormText.h"

#include <windows.h>

namespace quillet::gallery {

namespace {

constexpr UINT kWindows1252 = 1252;
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::wstring_view kBlanks = L" \t";

UINT codePageOf(FormCoding coding) noexcept { return coding == FormCoding::Utf8 ? CP_UTF8 : kWindows1252; }

} // namespace

FormCoding codingOf(std::string_view file) noexcept
{
    return file.starts_with(kUtf8Mark) ? FormCoding::Utf8 : FormCoding::Windows1252;
}

std::wstring decodedForm(std::string_view file)
{
    FormCoding const coding = codingOf(file);
    return decoded(file.substr(coding == FormCoding::Utf8 ? kUtf8Mark.size() : 0), coding);
}

std::wstring decoded(std::string_view bytes, FormCoding coding)
{
    if (bytes.empty())
        return {};
    UINT const codePage = codePageOf(coding);
    int const count = static_cast<int>(bytes.size());
    int const needed = ::MultiByteToWideChar(codePage, 0, bytes.data(), count, nullptr, 0);
    std::wstring text(static_cast<std::size_t>(needed), L'\0');
    ::MultiByteToWideChar(codePage, 0, bytes.data(), count, text.data(), needed);
    return text;
}

std::string encoded(std::wstring_view text, FormCoding coding)
{
    if (text.empty())
        return {};
    UINT const codePage = codePageOf(coding);
    int const count = static_cast<int>(text.size());
    int const needed = ::WideCharToMultiByte(codePage, 0, text.data(), count, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(needed), '\0');
    ::WideCharToMultiByte(codePage, 0, text.data(), count, bytes.data(), needed, nullptr, nullptr);
    return bytes;
}

std::wstring_view trimmed(std::wstring_view text) noexcept
{
    std::size_t const first = text.find_first_not_of(kBlanks);
    if (first == std::wstring_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::wstring_view FormLines::takeLine() noexcept
{
    std::size_t const end = m_rest.find_first_of(L"\r\n");
    std::wstring_view const line = m_rest.substr(0, end);
    if (end == std::wstring_view::npos) {
        m_rest = {};
    } else {
        bool const both = m_rest.substr(end).starts_with(L"\r\n");
        m_rest.remove_prefix(end + (both ? 2 : 1));
    }
    ++m_number;
    return line;
}

std::optional<FormLine> FormLines::next() noexcept
{
    m_restBefore = m_rest;
    m_numberBefore = m_number;
    while (!m_rest.empty()) {
        if (std::wstring_view const line = trimmed(takeLine()); !line.empty())
            return FormLine{line, m_number};
    }
    return std::nullopt;
}

void FormLines::stepBack() noexcept
{
    m_rest = m_restBefore;
    m_number = m_numberBefore;
}

} // namespace quillet::gallery

// The text of a form file: its decoding, and its lines one after the other.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quillet::gallery {

/// The bytes as text: Windows-1252, as the format has it, or UTF-8 behind a byte order mark.
std::wstring decodedFormText(std::string_view bytes);

/// A line as it stands in a form file: what decoding turns back into the text.
std::string encodedFormText(std::wstring_view text, bool isUtf8);

/// The text without the blanks and tabs at its ends.
std::wstring_view trimmed(std::wstring_view text) noexcept;

struct FormLine {
    std::wstring_view text; ///< trimmed
    int number = 0;         ///< from 1
};

/// Hands out the lines of a borrowed text, whether they end in CR LF, LF or CR.
class FormLines {
public:
    explicit FormLines(std::wstring_view text) noexcept : m_rest(text) {}

    /// The next line that is not blank; nothing at the end of the text.
    std::optional<FormLine> next() noexcept;
    /// The number of the line handed out last; 0 before the first.
    int number() const noexcept { return m_number; }
    /// Everything after that line.
    std::wstring_view rest() const noexcept { return m_rest; }
    /// Makes next() hand out the line handed out last once more; blank lines before it are back too.
    void stepBack() noexcept;

private:
    std::wstring_view takeLine() noexcept;

    std::wstring_view m_rest;
    std::wstring_view m_restBefore;
    int m_number = 0;
    int m_numberBefore = 0;
};

} // namespace quillet::gallery

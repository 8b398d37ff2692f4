// The text of a form file: its decoding, and its lines one after the other.
#pragma once

#include "gallery/form/FormTree.h"

#include <optional>
#include <string>
#include <string_view>

namespace quillet::gallery {

/// The coding of a form file: Windows-1252, as the format has it, or UTF-8 behind a byte order mark.
FormCoding codingOf(std::string_view file) noexcept;

/// A form file as text, without its mark.
std::wstring decodedForm(std::string_view file);

/// A piece of the form's text from its bytes, and back.
std::wstring decoded(std::string_view bytes, FormCoding coding);
std::string encoded(std::wstring_view text, FormCoding coding);

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

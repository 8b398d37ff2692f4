// Reads the text form format: text in, form tree out.
#pragma once

#include "gallery/form/FormTree.h"

#include <string>
#include <string_view>

namespace quillet::gallery {

/// Why a form cannot be opened, and where the reason stands. Thrown by everything that opens one.
struct FormError {
    std::wstring file;
    int line = 0; ///< from 1; 0 when the reason is the file itself
    std::wstring reason;

    /// file:line: reason
    std::wstring text() const;
};

/// The form that the bytes of a form file describe. fileName is only for the error.
FormTree readForm(std::string_view bytes, std::wstring const& fileName);

} // namespace quillet::gallery

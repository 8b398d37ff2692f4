// Writes a live form back: its own lines where nothing changed, new ones where something did.
#pragma once

#include "gallery/Companion.h"
#include "gallery/FormTree.h"

#include <string>
#include <string_view>

namespace quillet::gallery {

class Form;

struct SavedForm {
    std::string text;      ///< of the form file
    std::string companion; ///< of the file beside it; empty where there is nothing to put in
};

/// The form as its controls would save themselves now. original is the form file's bytes that tree was read
/// from; companionName is the name that the new companion file will have. A line whose value the control
/// still has stays byte for byte, whoever wrote it; so does one of a value that the control never saved, such
/// as a default. One of a value that has become the default goes. The form is a designed one.
SavedForm savedForm(Form& form, FormTree const& tree, std::string_view original, Companions& companions,
                    std::wstring const& companionName);

/// Opens, saves to a file and its companion, and writes both. Throws FormError.
void saveForm(Form& form, FormTree const& tree, std::wstring const& from, std::wstring const& to);

} // namespace quillet::gallery

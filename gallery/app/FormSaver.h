// Writes a live form back: its own lines where nothing changed, new ones where something did.
#pragma once

#include "gallery/form/Companion.h"
#include "gallery/form/FormEditor.h"
#include "gallery/form/FormTree.h"

#include <string>
#include <string_view>

namespace quillet::gallery {

class Form;

/// The form as its controls would save themselves now. original is the form file's bytes that tree was read
/// from; companionName is the name that the new companion file will have. The form is a designed one.
SavedForm savedForm(Form& form, FormTree const& tree, std::string_view original, Companions& companions,
                    std::wstring const& companionName);

/// Opens, saves to a file and its companion, and writes both. Throws FormError.
void saveForm(Form& form, FormTree const& tree, std::wstring const& from, std::wstring const& to);

} // namespace quillet::gallery

// A form file with its companion, in memory: what is opened, run, designed and written back.
#pragma once

#include "gallery/form/Companion.h"
#include "gallery/form/FormTree.h"

#include <string>
#include <string_view>

namespace quillet::gallery {

class Form;

class Document {
public:
    /// Reads the form; throws FormError.
    explicit Document(std::wstring path);
    /// From a text and a companion that stand in no file; path is for messages.
    Document(std::wstring path, std::string text, std::string pictures);

    std::wstring const& path() const noexcept { return m_path; }
    std::string const& text() const noexcept { return m_text; }
    FormTree const& tree() const noexcept { return m_tree; }
    /// A record of a companion file; throws ValueFault.
    std::string_view record(ResourceReference const& reference) { return m_companions.record(reference); }
    /// The file of pictures beside the form, which has the form's name.
    Companion const& companion() { return m_companions.file(companionName()); }

    /// Takes over what the controls of a designed form, made from this document, would save now: its own
    /// lines where nothing changed, new ones where something did. Whether something did.
    bool takeFrom(Form& form);
    /// Writes the form and its companion into the folder, under their names; throws FormError.
    void save(std::wstring const& folder);

private:
    std::wstring companionName() const;

    std::wstring m_path;
    std::string m_text;
    FormTree m_tree;
    Companions m_companions;
};

} // namespace quillet::gallery

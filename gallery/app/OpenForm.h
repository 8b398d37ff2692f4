// A document with the live form that is made from it: run, designed and saved.
#pragma once

#include "gallery/app/ControlLibrary.h"
#include "gallery/app/Document.h"
#include "gallery/host/Form.h"

#include <memory>
#include <string>

namespace quillet::gallery {

class OpenForm {
public:
    /// Components are looked for in the program's folder and beside the document, and stay in libraries.
    OpenForm(Document document, ControlLibraries& libraries, std::wstring const& programFolder);

    /// Makes the form, hidden, in place of the one before, from what the document says now. Of the options
    /// those that the document answers are filled in.
    void make(FormOptions options);

    Document const& document() const noexcept { return m_document; }
    std::wstring folder() const;
    /// Null before it is made, and while it goes.
    Form* form() const noexcept { return m_form.get(); }

    /// Takes over what was designed; whether nothing of it is missing in the file.
    bool takeDesign();
    /// Writes what was designed into the folder.
    void save(std::wstring const& folder);

private:
    Document m_document;
    ControlLibraries& m_libraries;
    std::unique_ptr<Form> m_form;
    bool m_isSaved = true;
};

} // namespace quillet::gallery

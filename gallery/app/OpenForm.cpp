// A document with its live form: how the one answers the other, and what of the form the document takes.
#include "gallery/app/OpenForm.h"

#include "gallery/app/Console.h"
#include "gallery/form/FileBytes.h"

#include <utility>

namespace quillet::gallery {

OpenForm::OpenForm(Document document, ControlLibraries& libraries, std::wstring const& programFolder)
    : m_document(std::move(document)), m_libraries(libraries)
{
    m_libraries.add(m_document.tree().objects, {programFolder, folder()});
}

std::wstring OpenForm::folder() const { return folderOf(m_document.path()); }

void OpenForm::make(FormOptions options)
{
    options.file = m_document.path();
    options.record = [this](ResourceReference const& reference) { return m_document.record(reference); };
    options.factory = [this](auto library, auto className) { return m_libraries.create(library, className); };
    options.onWarning = sayWarning;
    m_form.reset();
    m_form = std::make_unique<Form>(m_document.tree(), std::move(options));
}

bool OpenForm::takeDesign()
{
    if (m_form && m_form->isDesign() && m_document.takeFrom(*m_form))
        m_isSaved = false;
    return m_isSaved;
}

void OpenForm::save(std::wstring const& folder)
{
    takeDesign();
    m_document.save(folder);
    m_isSaved = true;
}

} // namespace quillet::gallery

// A form file with its companion: read, taken from live controls, written.
#include "gallery/app/Document.h"

#include "gallery/form/FileBytes.h"
#include "gallery/form/FormEditor.h"
#include "gallery/form/FormReader.h"
#include "gallery/host/Form.h"
#include "gallery/host/HostedControl.h"

#include <utility>
#include <vector>

namespace quillet::gallery {

namespace {

std::vector<FormNode const*> inOrder(std::vector<FormNode> const& nodes)
{
    std::vector<FormNode const*> result;
    for (FormNode const& node : nodes) {
        result.push_back(&node);
        auto const inside = inOrder(node.children);
        result.insert(result.end(), inside.begin(), inside.end());
    }
    return result;
}

} // namespace

Document::Document(std::wstring path)
    : m_path(std::move(path)), m_text(fileBytes(m_path)), m_tree(readForm(m_text, m_path)),
      m_companions(folderOf(m_path))
{}

Document::Document(std::wstring path, std::string text, std::string pictures)
    : m_path(std::move(path)), m_text(std::move(text)), m_tree(readForm(m_text, m_path)),
      m_companions(folderOf(m_path))
{
    m_companions.replace(companionName(), Companion(std::move(pictures)));
}

std::wstring Document::companionName() const { return withExtension(fileNameOf(m_path), L".frx"); }

bool Document::takeFrom(Form& form)
{
    FormEditor editor(m_text, m_companions, companionName());
    auto const nodes = inOrder(m_tree.form.children);
    for (std::size_t i = 0; i < nodes.size(); ++i)
        if (auto* const hosted = dynamic_cast<HostedControl*>(form.controls().at(i).get()))
            editor.save(*hosted->save(false).get(), hosted->asLoaded(), *nodes[i]);
    SavedForm saved = editor.finish();
    if (saved.text == m_text)
        return false;
    m_tree = readForm(saved.text, m_path);
    m_text = std::move(saved.text);
    m_companions.replace(companionName(), Companion(std::move(saved.companion)));
    return true;
}

void Document::save(std::wstring const& folder)
{
    if (std::string const& pictures = companion().bytes(); !pictures.empty())
        writeFileBytes(folder + L"\\" + companionName(), pictures);
    writeFileBytes(folder + L"\\" + fileNameOf(m_path), m_text);
}

} // namespace quillet::gallery

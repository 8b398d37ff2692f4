// Writes a live form back: what each of its controls saves, into the form's text.
#include "gallery/app/FormSaver.h"

#include "gallery/form/FileBytes.h"
#include "gallery/host/Form.h"
#include "gallery/host/HostedControl.h"

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

SavedForm savedForm(Form& form, FormTree const& tree, std::string_view original, Companions& companions,
                    std::wstring const& companionName)
{
    FormEditor editor(original, companions, companionName);
    auto const nodes = inOrder(tree.form.children);
    for (std::size_t i = 0; i < nodes.size(); ++i)
        if (auto* const hosted = dynamic_cast<HostedControl*>(form.controls().at(i).get()))
            editor.save(*hosted->save(false).get(), hosted->asLoaded(), *nodes[i]);
    return editor.finish();
}

void saveForm(Form& form, FormTree const& tree, std::wstring const& from, std::wstring const& to)
{
    std::wstring const companion = withExtension(to, L".frx");
    Companions companions(folderOf(from));
    std::string const original = fileBytes(from);
    SavedForm const saved = savedForm(form, tree, original, companions, fileNameOf(companion));
    if (!saved.companion.empty())
        writeFileBytes(companion, saved.companion);
    writeFileBytes(to, saved.text);
}

} // namespace quillet::gallery

// Fuzzes saving a form: what nothing changed stays as it was, and what is changed is there when it is read
// again.
//
// An input is two bytes with the length of the changes, the changes, and then a form as the form fuzzer has
// it.
#include "Changes.h"
#include "FormInput.h"
#include "Hold.h"
#include "gallery/form/ControlBag.h"
#include "gallery/form/FormEditor.h"
#include "gallery/form/FormReader.h"
#include "gallery/form/FormText.h"
#include "gallery/form/FormValue.h"
#include "platform/Objects.h"

namespace quillet::fuzz {

namespace {

using namespace quillet::gallery;

std::vector<FormNode const*> controlsOf(FormNode const& form)
{
    std::vector<FormNode const*> all;
    for (FormNode const& child : form.children) {
        all.push_back(&child);
        auto const inside = controlsOf(child);
        all.insert(all.end(), inside.begin(), inside.end());
    }
    return all;
}

struct Loaded {
    std::vector<Bag> bags; ///< what each control saves again
    bool isWhole = true;   ///< no reference led nowhere
};

/// All controls of a form, loaded from it and its companion files.
Loaded loaded(FormTree const& tree, std::string const& own, std::string const& others)
{
    setCompanions(tree, own, others);
    Companions companions(kFormFolder);
    BagSources sources;
    sources.coding = tree.coding;
    sources.record = [&](ResourceReference const& reference) { return companions.record(reference); };
    Loaded result;
    sources.onFailure = [&](int, std::wstring const&) { result.isWhole = false; };
    for (FormNode const* const node : controlsOf(tree.form))
        result.bags.push_back(asSaved(*controlBag(*node, sources).get()));
    return result;
}

SavedForm saved(FormTree const& tree, FormInput const& original, std::vector<Bag> const& before,
                std::vector<Bag> const& now)
{
    setCompanions(tree, original.companion, original.companion);
    Companions companions(kFormFolder);
    FormEditor editor(original.text(), companions, kCompanionName);
    auto const controls = controlsOf(tree.form);
    for (size_t i = 0; i < controls.size(); ++i)
        editor.save(*now[i].get(), before[i].get(), *controls[i]);
    return editor.finish();
}

bool haveSame(std::vector<Bag> const& wanted, std::vector<Bag> const& read)
{
    if (wanted.size() != read.size())
        return false;
    for (size_t i = 0; i < wanted.size(); ++i) {
        if (wanted[i]->entries().size() != read[i]->entries().size())
            return false;
        for (auto const& entry : wanted[i]->entries()) {
            Variant const* const found = read[i]->find(entry.name);
            if (!found || !areSame(entry.value, *found))
                return false;
        }
    }
    return true;
}

/// Shows both texts when something does not hold: the fuzzer itself tells neither.
void holdSaved(bool holds, char const* sentence, FormInput const& original, SavedForm const& saved)
{
    if (!holds)
        std::fprintf(stderr, "--- the form\n%.*s\n--- saved\n%s\n---\n",
                     static_cast<int>(original.text().size()), original.text().data(), saved.text.c_str());
    hold(holds, sentence);
}

void save(FormInput const& original, Input changes)
{
    FormTree tree;
    try {
        tree = readForm(original.text(), L"a.frm");
    } catch (FormError const&) {
        return;
    }
    auto const [before, isWhole] = loaded(tree, original.companion, original.companion);
    SavedForm const unchanged = saved(tree, original, before, before);
    if (isWhole) // of a name that also stands there as a reference to nowhere one line goes
        holdSaved(unchanged.text == original.text() && unchanged.companion == original.companion,
                  "what nothing changed stays byte for byte", original, unchanged);

    std::vector<Bag> now;
    for (Bag const& bag : before)
        now.push_back(changed(*bag.get(), changes, tree.coding));
    SavedForm const form = saved(tree, original, before, now);
    try {
        FormTree const again = readForm(form.text, L"a.frm");
        holdSaved(haveSame(now, loaded(again, form.companion, original.companion).bags),
                  "a value is read as it was saved", original, form);
    } catch (FormError const&) {
        holdSaved(false, "a saved form can be read", original, form);
    }
}

} // namespace

} // namespace quillet::fuzz

extern "C" int LLVMFuzzerTestOneInput(BYTE const* data, size_t size)
{
    using namespace quillet::fuzz;
    Input input(data, size);
    auto const changes = input.takeBytes(input.take<WORD>());
    auto const form = input.takeBytes(input.rest());
    save(FormInput(form), Input(changes.data(), changes.size()));
    files().clear();
    hold(livingObjects() == 0, "no object is left over");
    return 0;
}

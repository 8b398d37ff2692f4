// One choice among the check buttons of a control array.
#include "gallery/app/Choice.h"

#include "base/ComCall.h"
#include "base/LateBound.h"
#include "gallery/form/Names.h"
#include "gallery/host/Form.h"

namespace quillet::gallery {

namespace {

bool flag(FormControl& control, wchar_t const* property)
{
    return control.automation() &&
           orFallback(false, [&] { return propertyByName(control.automation(), property).toBool(); });
}

bool isChecked(FormControl& control) { return flag(control, L"Checked"); }

bool isChoice(FormControl& control) { return control.state().index && flag(control, L"CheckButton"); }

} // namespace

void choose(FormControl& clicked)
{
    if (!isChoice(clicked))
        return;
    Form const& form = clicked.form();
    for (auto const& each : form.controls()) {
        if (!sameName(each->state().name, clicked.state().name))
            continue;
        bool const isChosen = each.get() == &clicked;
        putPropertyByName(each->automation(), L"Checked", Variant::ofBool(isChosen));
        if (FormControl* const shown = form.find(each->state().tag))
            shown->setVisible(isChosen);
    }
}

void keepChoice(FormControl& released)
{
    if (!isChoice(released))
        return;
    for (auto const& each : released.form().controls())
        if (sameName(each->state().name, released.state().name) && isChecked(*each))
            return;
    putPropertyByName(released.automation(), L"Checked", Variant::ofBool(true));
}

} // namespace quillet::gallery

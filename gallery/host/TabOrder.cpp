// The order in which Tab and the arrow keys visit the controls of a form.
#include "gallery/host/TabOrder.h"

#include "gallery/host/FormControl.h"

#include <algorithm>

namespace quillet::gallery {

namespace {

using Controls = std::vector<std::unique_ptr<FormControl>>;

/// The control after from that fits, round the end; from itself comes last.
template <class Predicate>
FormControl* nextFitting(std::vector<FormControl*> order, FormControl const* from, Direction direction,
                         Predicate&& fits)
{
    if (direction == Direction::Backward)
        std::reverse(order.begin(), order.end());
    auto const at = std::find(order.begin(), order.end(), from);
    if (at != order.end())
        std::rotate(order.begin(), at + 1, order.end());
    auto const found = std::find_if(order.begin(), order.end(), fits);
    return found == order.end() ? nullptr : *found;
}

/// Of a group of option buttons only the selected one is a tab stop; the first one where none is.
bool isGroupsStop(Controls const& controls, FormControl const& option)
{
    if (!option.isOption() || option.isSelectedOption())
        return true;
    for (auto const& other : controls) {
        bool const isOfGroup = other->isOption() && other->container() == option.container() &&
                               other->className() == option.className() && other->canTabTo();
        if (isOfGroup && (other->isSelectedOption() || other->state().tabIndex < option.state().tabIndex))
            return false;
    }
    return true;
}

} // namespace

std::vector<FormControl*> tabOrder(Controls const& controls)
{
    std::vector<FormControl*> order;
    for (auto const& control : controls)
        order.push_back(control.get());
    std::stable_sort(order.begin(), order.end(), [](FormControl const* a, FormControl const* b) {
        return a->state().tabIndex < b->state().tabIndex;
    });
    return order;
}

FormControl* nextInTabOrder(Controls const& controls, FormControl const* from, Direction direction)
{
    return nextFitting(tabOrder(controls), from, direction, [&](FormControl const* control) {
        return control->canTabTo() && isGroupsStop(controls, *control);
    });
}

FormControl* nextOption(Controls const& controls, FormControl const& from, Direction direction)
{
    if (!from.isOption())
        return nullptr;
    return nextFitting(tabOrder(controls), &from, direction, [&](FormControl const* other) {
        return other->isOption() && other->container() == from.container() &&
               other->className() == from.className() && other->isShown() && other->isEnabled();
    });
}

} // namespace quillet::gallery

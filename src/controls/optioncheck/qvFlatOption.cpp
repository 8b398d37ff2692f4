// The flat option button: its properties and their order, and its choice among its siblings.
#include "controls/optioncheck/qvFlatOption.h"

#include "base/LateBound.h"
#include "controls/optioncheck/OptionCheckRows.h"
#include "surface/window/Cursor.h"
#include "typelib/Guids.h"
#include "typelib/HelpContexts.h"

#include <utility>

namespace quillet {

namespace {

/// Selecting the inner button clears the siblings and raises Click.
constexpr PropertyAccess kOptionValue = {
    [](Surface const& s) { return fieldValue(innerOf(s).value()); },
    [](Surface& s, Variant const& v) { innerOf(s).setValue(v.toLong() == triChecked ? 1 : 0); }};

constexpr OptionCheckRows kOptionRows =
    optionCheckRows({L"Option1", AtStart::Surface, PropertyKind::Number, kOptionValue, Saved::Yes});

Variant containerWindow(IDispatch* extender)
{
    auto const container = query<IDispatch>(propertyByName(extender, L"Container").toObject().get());
    return propertyByName(container.get(), L"hwnd").convertedTo(VT_I8);
}

} // namespace

constinit PropertyTable const qvFlatOption::kProperties(kOptionRows);

constinit ControlClass const qvFlatOption::kClass = {
    kQvFlatOptionClass,   kQvFlatOptionInterface,  kQvFlatOptionEvents,
    L"qvFlatOption",      L"Quillet.qvFlatOption", kOptionCheckStatus,
    kQvFlatOptionMembers, kHelpQvFlatOption,       &createControl<qvFlatOption>,
};

qvFlatOption::qvFlatOption(IUnknown* outer)
    : OptionCheckMembers(kClass, outer, InnerKind::Option, L"Option1", kProperties)
{}

void qvFlatOption::onReadProperties(PropertyBag& bag)
{
    refresh();
    readProperties(bag);
    m_savedTabStop = orFallback(false, [&] { return container().extenderProperty(L"TabStop").toBool(); });
}

void qvFlatOption::onMouseMove(MouseArguments const& mouse)
{
    // Raised twice while the form runs, as hosts expect of this control.
    bool const running = userMode();
    CursorMoment const moment(events());
    if (running) {
        followMouse(mouse);
        raiseMouseEvent(eventid::optionCheck::MouseMove, mouse);
    }
    setLastHover(running && isMouseOver());
    raiseMouseEvent(eventid::optionCheck::MouseMove, mouse);
}

void qvFlatOption::putValue(OLE_TRISTATE value)
{
    innerButton().setValue(value == triChecked ? 1 : 0);
    propertyChanged(dispid::qvFlatOption::Value, ViewChange::Yes);
    // Only the chosen option of a group is a tab stop.
    if (innerButton().value() == 1)
        giveTabStopBack();
    else
        container().putExtenderProperty(L"TabStop", Variant::ofBool(false));
    repaint();
}

void qvFlatOption::onClick()
{
    giveTabStopBack();
    if (!std::exchange(m_clearing, true)) {
        clearSiblings();
        m_clearing = false;
    }
    raiseEvent(eventid::optionCheck::Click);
}

/// An access key brings the focus along, which may have chosen the option already.
void qvFlatOption::onAccessKeyPress(short)
{
    if (innerButton().value() == 0)
        doClick();
}

/// An option that is chosen while it is being loaded has not read the host's setting yet and leaves it alone.
void qvFlatOption::giveTabStopBack() const noexcept
{
    if (m_savedTabStop)
        container().putExtenderProperty(L"TabStop", Variant::ofBool(*m_savedTabStop));
}

void qvFlatOption::clearSiblings() noexcept
{
    ignoringErrors([&] {
        CursorMoment const moment;
        LONG const own = HandleToLong(innerButton().handle());
        for (auto const& control : container().parentControls()) {
            auto const sibling = controlInterface(control.get(), kQvFlatOptionInterface);
            auto* const option = static_cast<_qvFlatOption*>(sibling.get());
            LONG window = 0;
            if (option && IsSameContainer(control.get()) && SUCCEEDED(option->get_hwnd(&window)) &&
                window != own)
                option->put_Value(triUnchecked);
        }
    });
}

/// Containers that do not tell their windows count as the same one.
bool qvFlatOption::IsSameContainer(IUnknown* sibling) const noexcept
{
    return orFallback(true, [&] {
        return containerWindow(extenderOf(sibling).get()).get().llVal ==
               containerWindow(container().extender().get()).get().llVal;
    });
}

} // namespace quillet

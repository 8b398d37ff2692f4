// The flat check box: its properties and their order, and what differs from the option button.
#include "controls/optioncheck/qvFlatCheck.h"

#include "controls/optioncheck/OptionCheckRows.h"
#include "surface/window/Cursor.h"
#include "typelib/Guids.h"
#include "typelib/HelpContexts.h"

namespace quillet {

namespace {

/// A changed value raises Click.
constexpr PropertyAccess kCheckValue = {
    [](Surface const& s) { return fieldValue(static_cast<short>(innerOf(s).value())); },
    [](Surface& s, Variant const& v) { innerOf(s).setValue(v.toShort()); }};

constexpr OptionCheckRows kCheckRows =
    optionCheckRows({L"Check1", AtStart::Default, PropertyKind::State, kCheckValue, Saved::OnlyWritten});

} // namespace

constinit PropertyTable const qvFlatCheck::kProperties(kCheckRows);

constinit ControlClass const qvFlatCheck::kClass = {
    kQvFlatCheckClass,   kQvFlatCheckInterface,  kQvFlatCheckEvents,
    L"qvFlatCheck",      L"Quillet.qvFlatCheck", kOptionCheckStatus,
    kQvFlatCheckMembers, kHelpQvFlatCheck,       &createControl<qvFlatCheck>,
};

qvFlatCheck::qvFlatCheck(IUnknown* outer)
    : OptionCheckMembers(kClass, outer, InnerKind::Check, L"Check1", kProperties)
{}

void qvFlatCheck::onMouseMove(MouseArguments const& mouse)
{
    if (!userMode())
        return;
    CursorMoment const moment(events());
    followMouse(mouse);
    setLastHover(isMouseOver());
    raiseMouseEvent(eventid::optionCheck::MouseMove, mouse);
}

void qvFlatCheck::putValue(OLE_TRISTATE value)
{
    properties().put(*this, properties().rowOf(dispid::qvFlatCheck::Value), Variant::ofLong(value));
}

void qvFlatCheck::onClick()
{
    repaint();
    raiseEvent(eventid::optionCheck::Click);
}

} // namespace quillet

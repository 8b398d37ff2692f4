// The dispatch identifiers of every member and event, by name: dispid::qvFlatCommand::Caption,
// eventid::command::Click.
#pragma once

#include <oaidl.h>
#include <olectl.h>
#include <windows.h>

namespace quillet {

#define QV_NAMED_ID(name, id) inline constexpr DISPID name = (id);

namespace dispid::qvFlatCommand {
#include "typelib/DispatchIdRows.inc"
#include "typelib/members/qvFlatCommand.inc"
} // namespace dispid::qvFlatCommand

/// FlatToolButton and qvImageCommand.
namespace dispid::imageButton {
#include "typelib/DispatchIdRows.inc"
#include "typelib/members/imageButton.inc"
} // namespace dispid::imageButton

namespace dispid::qvFlatOption {
#include "typelib/DispatchIdRows.inc"
#include "typelib/members/qvFlatOption.inc"
} // namespace dispid::qvFlatOption

namespace dispid::qvFlatCheck {
#include "typelib/DispatchIdRows.inc"
#include "typelib/members/qvFlatCheck.inc"
} // namespace dispid::qvFlatCheck

/// qvFlatCommand, FlatToolButton and qvImageCommand.
namespace eventid::command {
#include "typelib/DispatchIdRows.inc"
#include "typelib/members/commandEvents.inc"
} // namespace eventid::command

/// qvFlatOption and qvFlatCheck.
namespace eventid::optionCheck {
#include "typelib/DispatchIdRows.inc"
#include "typelib/members/optionCheckEvents.inc"
} // namespace eventid::optionCheck

#undef QV_NAMED_ID

} // namespace quillet

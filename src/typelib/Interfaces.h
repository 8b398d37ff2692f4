// The published interfaces as C++ types, in vtable order, each with its __uuidof.
#pragma once

#include "base/Compiler.h"
#include "typelib/Enumerations.h"

#include <ocidl.h>
#include <olectl.h>
#include <windows.h>

namespace quillet {

struct _qvFlatCommand : IDispatch {
#include "typelib/InterfaceRows.inc"
#include "typelib/members/qvFlatCommand.inc"
};

struct _qvFlatOption : IDispatch {
#include "typelib/InterfaceRows.inc"
#include "typelib/members/qvFlatOption.inc"
};

struct _qvFlatCheck : IDispatch {
#include "typelib/InterfaceRows.inc"
#include "typelib/members/qvFlatCheck.inc"
};

struct _FlatToolButton : IDispatch {
#include "typelib/InterfaceRows.inc"
#include "typelib/members/FlatToolButton.inc"
};

struct _qvImageCommand : IDispatch {
#include "typelib/InterfaceRows.inc"
#include "typelib/members/qvImageCommand.inc"
};

// The event interfaces are reached through Invoke alone.
struct __qvFlatCommand : IDispatch {};
struct __qvFlatOption : IDispatch {};
struct __qvFlatCheck : IDispatch {};
struct __FlatToolButton : IDispatch {};
struct __qvImageCommand : IDispatch {};

} // namespace quillet

#define QV_INTERFACE_ID(constant, type, ...) QV_INTERFACE_UUID(quillet::type, __VA_ARGS__)
#include "typelib/Guids.inc"

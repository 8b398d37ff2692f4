// The functions that a member of an interface or an event set consists of, as a type library describes them.
#pragma once

#include "typelib/maker/MemberRows.h"

#include <oaidl.h>
#include <windows.h>

#include <vector>

namespace quillet {

struct Parameter {
    wchar_t const* name; ///< null for none
    wchar_t const* type;
    bool byReference;
    USHORT flags; ///< PARAMFLAG bits
};

struct Function {
    MemberRow const* member;
    INVOKEKIND invoke;
    WORD flags; ///< FUNCFLAG bits
    std::vector<Parameter> parameters;
};

/// One function for a method or an event, two for a property that can be set: the get, then the put.
std::vector<Function> functionsOf(MemberRow const& member);

} // namespace quillet

// One late-bound call of a member: the host's arguments converted, the vtable called, the answer converted.
#pragma once

#include "base/ComCall.h"
#include "typelib/Members.h"

#include <oaidl.h>
#include <windows.h>

namespace quillet {

/// What IDispatch::Invoke is given; the last three may be null.
struct MemberCall {
    DISPID id;
    WORD kind; ///< DISPATCH bits
    DISPPARAMS const& arguments;
    VARIANT* result;
    EXCEPINFO* exception;
    UINT* badArgument;
};

/// Calls by the table of members alone, as the system's description of the interface may not be there.
/// DISP_E_EXCEPTION with its details where the member fails; throws what a call is refused with before.
HRESULT callMember(IDispatch& dual, Members members, MemberCall const& call, ErrorSource const& source);

} // namespace quillet

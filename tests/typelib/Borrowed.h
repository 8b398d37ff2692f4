// What a type library and its descriptions lend, borrowed for a scope.
#pragma once

#include "base/Borrowed.h"
#include "base/ComPtr.h"
#include "base/RunTimeError.h"

namespace quillet {

struct TypeAttributes : TypeRecord {
    explicit TypeAttributes(ITypeInfo& info) : TypeRecord(info) { check(info.GetTypeAttr(put())); }
};
struct FunctionDescription : FunctionRecord {
    FunctionDescription(ITypeInfo& info, UINT index) : FunctionRecord(info)
    {
        check(info.GetFuncDesc(index, put()));
    }
};
struct VariableDescription : VariableRecord {
    VariableDescription(ITypeInfo& info, UINT index) : VariableRecord(info)
    {
        check(info.GetVarDesc(index, put()));
    }
};
struct LibraryAttributes : LibraryRecord {
    explicit LibraryAttributes(ITypeLib& library) : LibraryRecord(library)
    {
        check(library.GetLibAttr(put()));
    }
};

/// The vtable's description of a dual interface, from the one for late binding.
inline ComPtr<ITypeInfo> vtableView(ITypeInfo& dispatch)
{
    HREFTYPE reference = 0;
    check(dispatch.GetRefTypeOfImplType(static_cast<UINT>(-1), &reference));
    ComPtr<ITypeInfo> view;
    check(dispatch.GetRefTypeInfo(reference, view.put()));
    return view;
}

} // namespace quillet

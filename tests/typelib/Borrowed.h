// Borrows the structures that a type description lends and gives them back.
#pragma once

#include "base/ComPtr.h"
#include "base/RunTimeError.h"

#include <oaidl.h>
#include <windows.h>

namespace quillet {

class TypeAttributes {
public:
    explicit TypeAttributes(ITypeInfo& info) : m_info(info) { check(info.GetTypeAttr(&m_value)); }
    ~TypeAttributes() { m_info.ReleaseTypeAttr(m_value); }
    TypeAttributes(TypeAttributes const&) = delete;
    TypeAttributes& operator=(TypeAttributes const&) = delete;
    TYPEATTR const* operator->() const { return m_value; }
    TYPEATTR const& operator*() const { return *m_value; }

private:
    ITypeInfo& m_info;
    TYPEATTR* m_value = nullptr;
};

class FunctionDescription {
public:
    FunctionDescription(ITypeInfo& info, UINT index) : m_info(info)
    {
        check(info.GetFuncDesc(index, &m_value));
    }
    ~FunctionDescription() { m_info.ReleaseFuncDesc(m_value); }
    FunctionDescription(FunctionDescription const&) = delete;
    FunctionDescription& operator=(FunctionDescription const&) = delete;
    FUNCDESC const* operator->() const { return m_value; }
    FUNCDESC const& operator*() const { return *m_value; }

private:
    ITypeInfo& m_info;
    FUNCDESC* m_value = nullptr;
};

class VariableDescription {
public:
    VariableDescription(ITypeInfo& info, UINT index) : m_info(info)
    {
        check(info.GetVarDesc(index, &m_value));
    }
    ~VariableDescription() { m_info.ReleaseVarDesc(m_value); }
    VariableDescription(VariableDescription const&) = delete;
    VariableDescription& operator=(VariableDescription const&) = delete;
    VARDESC const* operator->() const { return m_value; }

private:
    ITypeInfo& m_info;
    VARDESC* m_value = nullptr;
};

class LibraryAttributes {
public:
    explicit LibraryAttributes(ITypeLib& library) : m_library(library)
    {
        check(library.GetLibAttr(&m_value));
    }
    ~LibraryAttributes() { m_library.ReleaseTLibAttr(m_value); }
    LibraryAttributes(LibraryAttributes const&) = delete;
    LibraryAttributes& operator=(LibraryAttributes const&) = delete;
    TLIBATTR const* operator->() const { return m_value; }

private:
    ITypeLib& m_library;
    TLIBATTR* m_value = nullptr;
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

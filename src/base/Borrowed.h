// Records that a type library or a type description lends.
#pragma once

#include <oaidl.h>
#include <windows.h>

namespace quillet {

/// Borrows one record of its owner for a scope.
template <class Owner, class Record, void (STDMETHODCALLTYPE Owner::*release)(Record*)> class Borrowed {
public:
    explicit Borrowed(Owner& owner) noexcept : m_owner(owner) {}
    ~Borrowed()
    {
        if (m_record)
            (m_owner.*release)(m_record);
    }
    Borrowed(Borrowed const&) = delete;
    Borrowed& operator=(Borrowed const&) = delete;
    Record** put() noexcept { return &m_record; }
    Record const* operator->() const noexcept { return m_record; }
    Record const& operator*() const noexcept { return *m_record; }

private:
    Owner& m_owner;
    Record* m_record = nullptr;
};
using LibraryRecord = Borrowed<ITypeLib, TLIBATTR, &ITypeLib::ReleaseTLibAttr>;
using TypeRecord = Borrowed<ITypeInfo, TYPEATTR, &ITypeInfo::ReleaseTypeAttr>;
using FunctionRecord = Borrowed<ITypeInfo, FUNCDESC, &ITypeInfo::ReleaseFuncDesc>;
using VariableRecord = Borrowed<ITypeInfo, VARDESC, &ITypeInfo::ReleaseVarDesc>;

} // namespace quillet

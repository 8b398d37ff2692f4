// Owns the attributes that a type description lends.
#pragma once

#include "base/RunTimeError.h"

#include <oaidl.h>
#include <windows.h>

namespace quillet::gallery {

/// For one scope; the description must outlive it. Throws when there are none.
class TypeAttributes {
public:
    explicit TypeAttributes(ITypeInfo& info) : m_info(info) { check(info.GetTypeAttr(&m_attributes)); }
    ~TypeAttributes() { m_info.ReleaseTypeAttr(m_attributes); }
    TypeAttributes(TypeAttributes const&) = delete;
    TypeAttributes& operator=(TypeAttributes const&) = delete;
    TYPEATTR const* operator->() const noexcept { return m_attributes; }

private:
    ITypeInfo& m_info;
    TYPEATTR* m_attributes = nullptr;
};

} // namespace quillet::gallery

// Owns one automation string: the parts that allocate.
#include "base/Bstr.h"

#include <new>

namespace quillet {

namespace {

BSTR allocate(std::wstring_view text)
{
    BSTR const result = ::SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    if (!result)
        throw std::bad_alloc();
    return result;
}

} // namespace

Bstr::Bstr(std::wstring_view text) : m_text(text.empty() ? nullptr : allocate(text)) {}

BSTR Bstr::copy() const { return allocate(view()); }

} // namespace quillet

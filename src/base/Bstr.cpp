// Owns one automation string: the parts that allocate.
#include "base/Bstr.h"

#include <new>

namespace quillet {

Bstr::Bstr(std::wstring_view text) : m_text(text.empty() ? nullptr : copyOf(text)) {}

BSTR Bstr::copyOf(std::wstring_view text)
{
    BSTR const result = ::SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    if (!result)
        throw std::bad_alloc();
    return result;
}

} // namespace quillet

// A container's own bag, whatever it can convert.
#include "saving/PropertyBag.h"

#include "base/RunTimeError.h"

namespace quillet {

namespace {

/// Whether a bag has a value and could not convert it. One that has none answers E_INVALIDARG or E_FAIL.
bool isConversionFailure(HRESULT result) noexcept
{
    return result == DISP_E_TYPEMISMATCH || result == DISP_E_OVERFLOW || result == DISP_E_BADVARTYPE;
}

} // namespace

Variant HostPropertyBag::readProperty(wchar_t const* name, VARTYPE type)
{
    // First the type that is wanted. A bag that cannot convert is asked for whatever it has.
    for (VARTYPE const asked : {type, VARTYPE{VT_EMPTY}}) {
        Variant value;
        value.address()->vt = asked;
        value.address()->byref = nullptr;
        HRESULT const result = m_bag->Read(name, value.address(), m_log.get());
        if (SUCCEEDED(result))
            return value;
        value.address()->vt = VT_EMPTY; // what a failing bag left there is no value
        if (!isConversionFailure(result))
            return {};
    }
    throw RunTimeError(ErrorNumber::TypeMismatch);
}

void HostPropertyBag::writeProperty(wchar_t const* name, Variant value)
{
    check(m_bag->Write(name, value.address()));
}

} // namespace quillet

// Owns one automation variant: making and converting.
#include "base/Variant.h"

#include "base/RunTimeError.h"

namespace quillet {

namespace {

/// Conversions fail with automation's own results; hosts know the run-time errors.
[[noreturn]] void throwConversion(HRESULT result)
{
    switch (result) {
    case DISP_E_OVERFLOW:
        throw RunTimeError(ErrorNumber::Overflow);
    case DISP_E_TYPEMISMATCH:
    case DISP_E_BADVARTYPE:
        throw RunTimeError(ErrorNumber::TypeMismatch);
    default:
        throw RunTimeError(result);
    }
}

/// Whether a value is all in the VARIANT itself: the system's functions take many times as long for those.
bool isPlain(VARTYPE type) noexcept { return type <= VT_DATE || type == VT_BOOL; }

/// The system follows a reference without looking.
void requireTarget(VARIANT const& value)
{
    if (refersToNothing(value))
        throw RunTimeError(ErrorNumber::TypeMismatch);
}

} // namespace

bool refersToNothing(VARIANT const& value) noexcept
{
    if (!(value.vt & VT_BYREF))
        return false;
    if (!value.byref)
        return true;
    return value.vt == (VT_VARIANT | VT_BYREF) && (value.pvarVal->vt & VT_BYREF) && !value.pvarVal->byref;
}

Variant::Variant(Variant const& other) : Variant()
{
    if (isPlain(other.m_value.vt))
        m_value = other.m_value;
    else
        check(::VariantCopy(&m_value, const_cast<VARIANT*>(&other.m_value)));
}

Variant& Variant::operator=(Variant other) noexcept
{
    std::swap(m_value, other.m_value);
    return *this;
}

Variant Variant::ofShort(short value) noexcept
{
    Variant result;
    result.m_value.vt = VT_I2;
    result.m_value.iVal = value;
    return result;
}

Variant Variant::ofLong(long value) noexcept
{
    Variant result;
    result.m_value.vt = VT_I4;
    result.m_value.lVal = value;
    return result;
}

Variant Variant::ofFloat(float value) noexcept
{
    Variant result;
    result.m_value.vt = VT_R4;
    result.m_value.fltVal = value;
    return result;
}

Variant Variant::ofBool(bool value) noexcept
{
    Variant result;
    result.m_value.vt = VT_BOOL;
    result.m_value.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
    return result;
}

Variant Variant::ofString(std::wstring_view text)
{
    Variant result;
    result.m_value.bstrVal = Bstr::copyOf(text);
    result.m_value.vt = VT_BSTR;
    return result;
}

Variant Variant::ofDispatch(IDispatch* borrowed) noexcept
{
    Variant result;
    result.m_value.vt = VT_DISPATCH;
    result.m_value.pdispVal = ComPtr<IDispatch>(borrowed).detach();
    return result;
}

Variant Variant::ofUnknown(IUnknown* borrowed) noexcept
{
    Variant result;
    result.m_value.vt = VT_UNKNOWN;
    result.m_value.punkVal = ComPtr<IUnknown>(borrowed).detach();
    return result;
}

Variant Variant::ofShortRef(short* target) noexcept
{
    Variant result;
    result.m_value.vt = VT_I2 | VT_BYREF;
    result.m_value.piVal = target;
    return result;
}

Variant Variant::ofFloatRef(float* target) noexcept
{
    Variant result;
    result.m_value.vt = VT_R4 | VT_BYREF;
    result.m_value.pfltVal = target;
    return result;
}

HRESULT changeType(VARIANT& result, VARIANT const& value, VARTYPE type) noexcept
{
    constexpr BYTE kMostDigits = 28;
    VARIANT const& target = followed(value);
    DECIMAL const* const number = target.vt == VT_DECIMAL                ? &target.decVal
                                  : target.vt == (VT_DECIMAL | VT_BYREF) ? target.pdecVal
                                                                         : nullptr;
    if (number && number->scale > kMostDigits)
        return DISP_E_TYPEMISMATCH;
    return ::VariantChangeType(&result, const_cast<VARIANT*>(&value), 0, type);
}

Variant Variant::copyOf(VARIANT const& borrowed)
{
    requireTarget(borrowed);
    Variant result;
    HRESULT const copied = ::VariantCopyInd(&result.m_value, const_cast<VARIANT*>(&borrowed));
    if (FAILED(copied))
        throwConversion(copied);
    return result;
}

Variant Variant::adopt(VARIANT& owned) noexcept
{
    Variant result;
    std::swap(result.m_value, owned);
    return result;
}

VARIANT* Variant::put() noexcept
{
    clear();
    return &m_value;
}

VARIANT Variant::detach() noexcept
{
    VARIANT const result = m_value;
    m_value.vt = VT_EMPTY;
    return result;
}

void Variant::clear() noexcept
{
    if (!isPlain(m_value.vt))
        ::VariantClear(&m_value);
    m_value.vt = VT_EMPTY;
}

Variant Variant::convertedTo(VARTYPE type) const
{
    if (m_value.vt == type)
        return *this; // the system's conversion to the same type takes ten times as long
    if (m_value.vt == VT_NULL)
        throw RunTimeError(ErrorNumber::InvalidUseOfNull);
    requireTarget(m_value);
    Variant result;
    HRESULT const changed = changeType(result.m_value, m_value, type);
    if (FAILED(changed))
        throwConversion(changed);
    return result;
}

Bstr Variant::toString() const
{
    Variant text = convertedTo(VT_BSTR);
    return Bstr::adopt(text.detach().bstrVal);
}

ComPtr<IUnknown> Variant::toObject() const
{
    switch (m_value.vt) {
    case VT_EMPTY:
    case VT_NULL:
        return {};
    case VT_UNKNOWN:
    case VT_DISPATCH:
        return m_value.punkVal; // IDispatch is an IUnknown, and the union holds the same pointer
    case VT_UNKNOWN | VT_BYREF:
    case VT_DISPATCH | VT_BYREF:
        return m_value.ppunkVal ? ComPtr<IUnknown>(*m_value.ppunkVal) : ComPtr<IUnknown>();
    default:
        throw RunTimeError(ErrorNumber::TypeMismatch);
    }
}

} // namespace quillet

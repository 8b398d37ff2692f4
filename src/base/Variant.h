// Owns one automation variant.
#pragma once

#include "base/Bstr.h"
#include "base/ComPtr.h"

#include <oaidl.h>
#include <windows.h>

#include <oleauto.h>

namespace quillet {

/// Owns a VARIANT and what it holds; empty at first.
class Variant {
public:
    Variant() noexcept { m_value.vt = VT_EMPTY; }
    Variant(Variant const& other);
    Variant(Variant&& other) noexcept : m_value(other.m_value) { other.m_value.vt = VT_EMPTY; }
    ~Variant() { clear(); }

    Variant& operator=(Variant other) noexcept;

    static Variant ofShort(short value) noexcept;
    static Variant ofLong(long value) noexcept;
    static Variant ofFloat(float value) noexcept;
    static Variant ofBool(bool value) noexcept;
    static Variant ofString(std::wstring_view text);
    static Variant ofDispatch(IDispatch* borrowed) noexcept;
    static Variant ofUnknown(IUnknown* borrowed) noexcept;
    /// A short that the receiver may change: an argument by reference of an event.
    static Variant ofShortRef(short* target) noexcept;
    static Variant ofFloatRef(float* target) noexcept;
    /// An own copy of a borrowed VARIANT, references followed.
    static Variant copyOf(VARIANT const& borrowed);
    /// Takes over what a VARIANT holds and leaves it empty.
    static Variant adopt(VARIANT& owned) noexcept;

    VARTYPE type() const noexcept { return m_value.vt; }
    VARIANT const& get() const noexcept { return m_value; }
    VARIANT* address() noexcept { return &m_value; }
    VARIANT* put() noexcept;
    VARIANT detach() noexcept;

    /// The value in another type. Type mismatch (13) or Overflow (6) where it does not convert, Invalid use
    /// of Null (94) for Null.
    Variant convertedTo(VARTYPE type) const;
    short toShort() const { return type() == VT_I2 ? m_value.iVal : convertedTo(VT_I2).m_value.iVal; }
    long toLong() const { return type() == VT_I4 ? m_value.lVal : convertedTo(VT_I4).m_value.lVal; }
    bool toBool() const
    {
        return (type() == VT_BOOL ? m_value.boolVal : convertedTo(VT_BOOL).m_value.boolVal) != VARIANT_FALSE;
    }
    Bstr toString() const;
    /// The object held, by any of the object types and references to them; empty for none.
    /// Type mismatch for a value that is not an object.
    ComPtr<IUnknown> toObject() const;

private:
    void clear() noexcept;

    VARIANT m_value;
};

/// Whether a VARIANT is a reference to nothing: a null pointer, in itself or in the VARIANT it refers to.
bool refersToNothing(VARIANT const& value) noexcept;

/// What a reference to a VARIANT refers to, which must be something; any other value itself.
inline VARIANT const& followed(VARIANT const& value) noexcept
{
    return value.vt == (VT_VARIANT | VT_BYREF) ? *value.pvarVal : value;
}

/// Changes a value's type as the system does, but for a decimal number with more than 28 digits behind its
/// point: some systems write the digits of one past the end of their buffer. That is DISP_E_TYPEMISMATCH.
HRESULT changeType(VARIANT& result, VARIANT const& value, VARTYPE type) noexcept;

/// Reads a borrowed VARIANT as a 16-bit integer.
inline short shortOf(VARIANT const& value) { return Variant::copyOf(value).toShort(); }

} // namespace quillet

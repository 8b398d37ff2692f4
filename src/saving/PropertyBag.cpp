// Saved properties by name: what all carriers share, and a container's own bag.
#include "saving/PropertyBag.h"

#include "base/RunTimeError.h"
#include "saving/StandardFont.h"
#include "saving/StandardPicture.h"

namespace quillet {

namespace {

/// An empty picture stands for none.
IUnknown* savedObject(IUnknown* object) noexcept
{
    auto const picture = query<IPicture>(object);
    return picture && isEmptyPicture(picture.get()) ? nullptr : object;
}

/// Objects are equal when they are the same one, or fonts of the same look.
bool sameObject(IUnknown* a, IUnknown* b) noexcept
{
    a = savedObject(a);
    b = savedObject(b);
    if (a == b)
        return true;
    auto const fontA = query<IFont>(a);
    auto const fontB = query<IFont>(b);
    return fontA && fontB && equalFonts(fontA.get(), fontB.get());
}

/// Whether two values of the same type are equal.
bool sameValue(Variant const& a, Variant const& b)
{
    if (a.type() == VT_UNKNOWN)
        return sameObject(a.toObject().get(), b.toObject().get());
    if (a.type() == VT_BSTR)
        return Bstr::viewOf(a.get().bstrVal) == Bstr::viewOf(b.get().bstrVal);
    return a.toLong() == b.toLong();
}

/// Whether a bag has a value and could not convert it. One that has none answers E_INVALIDARG or E_FAIL.
bool isConversionFailure(HRESULT result) noexcept
{
    return result == DISP_E_TYPEMISMATCH || result == DISP_E_OVERFLOW || result == DISP_E_BADVARTYPE;
}

} // namespace

bool PropertyBag::writeProperty(wchar_t const* name, Variant const& value, Variant const& fallback)
{
    if (value.type() == fallback.type() && sameValue(value, fallback))
        return false;
    write(name, value);
    return true;
}

Variant HostPropertyBag::read(wchar_t const* name, VARTYPE type)
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

void HostPropertyBag::write(wchar_t const* name, Variant value)
{
    check(m_bag->Write(name, value.address()));
}

} // namespace quillet

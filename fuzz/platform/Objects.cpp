// What stands in for the system's font and picture objects: identity, equality, and where the readers get
// them.
#include "platform/Objects.h"

#include "saving/StandardFont.h"
#include "saving/StandardPicture.h"

#include <oleauto.h>

namespace quillet::fuzz {

int FontObject::s_living = 0;

FontObject::FontObject(FONTDESC const& description)
    : m_name(description.lpstrName), m_size(description.cySize), m_weight(description.sWeight),
      m_charset(description.sCharset), m_italic(description.fItalic), m_underline(description.fUnderline),
      m_strike(description.fStrikethrough)
{
    ++s_living;
}

FontObject::FontObject(FontObject const& other)
    : m_name(other.m_name), m_size(other.m_size), m_weight(other.m_weight), m_charset(other.m_charset),
      m_italic(other.m_italic), m_underline(other.m_underline), m_strike(other.m_strike),
      m_bytes(other.m_bytes)
{
    ++s_living;
}

/// Late-bound calls come to nothing here.
IUnknown* FontObject::inheritedInterface(REFIID iid) noexcept
{
    return iid == IID_IDispatch || iid == IID_IFontDisp ? static_cast<IFont*>(this) : nullptr;
}

HRESULT STDMETHODCALLTYPE FontObject::Clone(IFont** copy)
{
    *copy = new FontObject(*this);
    return S_OK;
}

HRESULT STDMETHODCALLTYPE FontObject::get_Name(BSTR* name)
{
    *name = ::SysAllocStringLen(m_name.data(), static_cast<UINT>(m_name.size()));
    return *name ? S_OK : E_OUTOFMEMORY;
}

bool FontObject::operator==(FontObject const& other) const noexcept
{
    return m_name == other.m_name && m_size.int64 == other.m_size.int64 && m_weight == other.m_weight &&
           m_charset == other.m_charset && m_italic == other.m_italic && m_underline == other.m_underline &&
           m_strike == other.m_strike && m_bytes == other.m_bytes;
}

HRESULT STDMETHODCALLTYPE FontObject::IsEqual(IFont* other)
{
    return *this == *static_cast<FontObject*>(other) ? S_OK : S_FALSE; // there are no other fonts
}

int PlainObject::s_living = 0;

HRESULT STDMETHODCALLTYPE PlainObject::QueryInterface(REFIID iid, void** out)
{
    if (iid == IID_IPersistStream && m_kind != Kind::Picture) {
        *out = nullptr;
        return E_NOINTERFACE;
    }
    return Counted::QueryInterface(iid, out);
}

IUnknown* PlainObject::inheritedInterface(REFIID iid) noexcept
{
    bool const isPicture = m_kind == Kind::Picture && (iid == IID_IPicture || iid == IID_IPictureDisp);
    return iid == IID_IDispatch || isPicture ? static_cast<IPersistStream*>(this) : nullptr;
}

} // namespace quillet::fuzz

namespace quillet {

ComPtr<IFont> copyOfFont(IUnknown* font) noexcept
{
    auto const original = query<IFont>(font);
    ComPtr<IFont> copy;
    if (original)
        original->Clone(copy.put());
    return copy;
}

ComPtr<IFont> unloadedFont() { return ComPtr<IFont>::adopt(new fuzz::FontObject()); }

bool equalFonts(IFont* a, IFont* b) noexcept { return a->IsEqual(b) == S_OK; }

ComPtr<IPictureDisp> unloadedPicture()
{
    using fuzz::PlainObject;
    auto* const picture = new PlainObject(PlainObject::Kind::Picture);
    return ComPtr<IPictureDisp>::adopt(
        reinterpret_cast<IPictureDisp*>(static_cast<IPersistStream*>(picture)));
}

/// Every picture here is such an object, whatever interface it was asked for.
bool isEmptyPicture(IUnknown* picture) noexcept
{
    return !picture ||
           static_cast<fuzz::PlainObject*>(reinterpret_cast<IPersistStream*>(picture))->bytes().empty();
}

/// None has a format of its own.
bool isMetafile(IUnknown*) noexcept { return false; }

} // namespace quillet

HRESULT WINAPI OleCreateFontIndirect(FONTDESC* description, REFIID, void** font)
{
    *font = static_cast<IFont*>(new quillet::fuzz::FontObject(*description));
    return S_OK;
}

HRESULT WINAPI OleCreatePictureIndirect(PICTDESC*, REFIID, BOOL, void** picture)
{
    *picture = quillet::unloadedPicture().detach();
    return S_OK;
}

// What stands in for the system's font and picture objects: keeping bytes, and where the readers get such objects.
#include "platform/PlainObject.h"

#include "surface/StandardFont.h"
#include "surface/StandardPicture.h"

#include <ocidl.h>
#include <olectl.h>

#include <array>

namespace quillet::fuzz {

int PlainObject::s_living = 0;

bool PlainObject::answers(REFIID iid) const noexcept
{
    if (iid == IID_IPersistStream)
        return m_kind != Kind::Other;
    if (iid == IID_IFont)
        return m_kind == Kind::Font;
    if (iid == IID_IPicture || iid == IID_IPictureDisp)
        return m_kind == Kind::Picture;
    return iid == IID_IDispatch;
}

HRESULT STDMETHODCALLTYPE PlainObject::Load(IStream* stream)
{
    m_bytes.clear();
    std::array<BYTE, 61> piece; // no power of two, so that the last piece is mostly a part
    for (ULONG got = 1; got > 0;) {
        HRESULT const result = stream->Read(piece.data(), static_cast<ULONG>(piece.size()), &got);
        if (FAILED(result))
            return result;
        m_bytes.insert(m_bytes.end(), piece.begin(), piece.begin() + got);
    }
    return !m_bytes.empty() && m_bytes.front() == kDamaged ? E_FAIL : S_OK;
}

HRESULT STDMETHODCALLTYPE PlainObject::Save(IStream* stream, BOOL)
{
    return stream->Write(m_bytes.data(), static_cast<ULONG>(m_bytes.size()), nullptr);
}

} // namespace quillet::fuzz

namespace quillet {

using fuzz::PlainObject;

namespace {

/// Every font and picture here is such an object, whatever interface it was asked for.
PlainObject const& plain(IUnknown* object) noexcept
{
    return *static_cast<PlainObject*>(reinterpret_cast<IPersistStream*>(object));
}

} // namespace

ComPtr<IFont> systemFont()
{
    auto* const font = new PlainObject(PlainObject::Kind::Font);
    return ComPtr<IFont>::adopt(reinterpret_cast<IFont*>(static_cast<IPersistStream*>(font)));
}

ComPtr<IPictureDisp> unloadedPicture()
{
    auto* const picture = new PlainObject(PlainObject::Kind::Picture);
    return ComPtr<IPictureDisp>::adopt(
        reinterpret_cast<IPictureDisp*>(static_cast<IPersistStream*>(picture)));
}

bool isEmptyPicture(IUnknown* picture) noexcept { return !picture || plain(picture).bytes().empty(); }

bool equalFonts(IFont* a, IFont* b) noexcept { return plain(a).bytes() == plain(b).bytes(); }

} // namespace quillet

HRESULT WINAPI OleCreatePictureIndirect(PICTDESC*, REFIID, BOOL, void** picture)
{
    *picture = quillet::unloadedPicture().detach();
    return S_OK;
}

HRESULT WINAPI OleCreateFontIndirect(FONTDESC*, REFIID, void** font)
{
    *font = quillet::systemFont().detach();
    return S_OK;
}

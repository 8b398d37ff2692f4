// IDataObject: the control's picture as a metafile, for containers that keep one of every object.
#include "surface/faces/DataObject.h"

#include "base/Enumerator.h"
#include "base/Handles.h"
#include "base/RunTimeError.h"
#include "surface/Surface.h"

namespace quillet {

namespace {

struct MetafileTraits {
    using Handle = HMETAFILE;
    static void close(HMETAFILE metafile) noexcept { ::DeleteMetaFile(metafile); }
};
using UniqueMetafile = UniqueHandle<MetafileTraits>;

struct GlobalTraits {
    using Handle = HGLOBAL;
    static void close(HGLOBAL memory) noexcept { ::GlobalFree(memory); }
};
using UniqueGlobal = UniqueHandle<GlobalTraits>;

constexpr FORMATETC kMetafile = {CF_METAFILEPICT, nullptr, DVASPECT_CONTENT, -1, TYMED_MFPICT};

HRESULT acceptance(FORMATETC const& format) noexcept
{
    if (format.cfFormat != kMetafile.cfFormat)
        return DV_E_FORMATETC;
    if (format.dwAspect != kMetafile.dwAspect)
        return DV_E_DVASPECT;
    return (format.tymed & kMetafile.tymed) ? S_OK : DV_E_TYMED;
}

UniqueMetafile metafileOf(Surface& surface, SIZEL extent)
{
    HDC const dc = ::CreateMetaFileW(nullptr);
    if (!dc)
        throw RunTimeError(E_OUTOFMEMORY);
    ::SetMapMode(dc, MM_ANISOTROPIC);
    ::SetWindowOrgEx(dc, 0, 0, nullptr);
    ::SetWindowExtEx(dc, extent.cx, extent.cy, nullptr);
    ignoringErrors([&] { surface.view().drawInto(dc, {0, 0, extent.cx, extent.cy}); });
    return UniqueMetafile(::CloseMetaFile(dc));
}

} // namespace

HRESULT DataObject::GetData(FORMATETC* format, STGMEDIUM* medium)
{
    return m_surface.call([&] {
        deref(medium) = {};
        check(acceptance(deref(format)));
        SIZEL const extent = m_surface.oleObject().extent();
        UniqueMetafile metafile = metafileOf(m_surface, extent);
        UniqueGlobal memory(::GlobalAlloc(GMEM_MOVEABLE | GMEM_SHARE, sizeof(METAFILEPICT)));
        if (!metafile || !memory)
            throw RunTimeError(E_OUTOFMEMORY);
        auto* const picture = static_cast<METAFILEPICT*>(::GlobalLock(memory.get()));
        *picture = {MM_ANISOTROPIC, extent.cx, extent.cy, metafile.release()};
        ::GlobalUnlock(memory.get());
        medium->tymed = TYMED_MFPICT;
        medium->hMetaFilePict = memory.release();
    });
}

HRESULT DataObject::GetDataHere(FORMATETC*, STGMEDIUM*) { return DV_E_FORMATETC; }

HRESULT DataObject::QueryGetData(FORMATETC* format)
{
    return comCall([&] { return acceptance(deref(format)); });
}

HRESULT DataObject::GetCanonicalFormatEtc(FORMATETC* format, FORMATETC* canonical)
{
    return comCall([&] {
        deref(canonical) = deref(format);
        canonical->ptd = nullptr;
        return DATA_S_SAMEFORMATETC;
    });
}

HRESULT DataObject::SetData(FORMATETC*, STGMEDIUM*, WINBOOL) { return E_NOTIMPL; }

HRESULT DataObject::EnumFormatEtc(DWORD direction, IEnumFORMATETC** enumerator)
{
    return comCall([&] {
        deref(enumerator) = nullptr;
        if (direction != DATADIR_GET)
            return E_NOTIMPL;
        *enumerator = makeCounted<Enumerator<IEnumFORMATETC, FORMATETC>>(std::vector{kMetafile}).detach();
        return S_OK;
    });
}

HRESULT DataObject::DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD* cookie)
{
    return comCall([&] {
        deref(cookie) = 0;
        return OLE_E_ADVISENOTSUPPORTED;
    });
}

HRESULT DataObject::DUnadvise(DWORD) { return OLE_E_ADVISENOTSUPPORTED; }

HRESULT DataObject::EnumDAdvise(IEnumSTATDATA** enumerator)
{
    return comCall([&] {
        deref(enumerator) = nullptr;
        return OLE_E_ADVISENOTSUPPORTED;
    });
}

} // namespace quillet

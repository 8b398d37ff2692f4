// IOleObject: site, extent, verbs, closing.
#include "surface/faces/OleObject.h"

#include "base/Enumerator.h"
#include "base/RunTimeError.h"
#include "base/TaskMemory.h"
#include "surface/Surface.h"

#include <ole2.h>

namespace quillet {

namespace {

/// The verbs that a container lists; the others are for containers alone. Not left to the registry: a control
/// may run without being registered.
constexpr OLEVERB kPrimaryVerb = {OLEIVERB_PRIMARY, const_cast<LPOLESTR>(kPrimaryVerbName), 0,
                                  OLEVERBATTRIB_ONCONTAINERMENU};
constexpr OLEVERB kPropertiesVerb = {OLEIVERB_PROPERTIES, const_cast<LPOLESTR>(L"&Properties..."), 0,
                                     OLEVERBATTRIB_ONCONTAINERMENU};

} // namespace

void requireContent(DWORD aspect)
{
    if (aspect != DVASPECT_CONTENT)
        throw RunTimeError(DV_E_DVASPECT);
}

/// A verb's name is handed out as a copy that the caller frees.
template <> struct Handed<OLEVERB> {
    using Kept = OLEVERB;
    static void give(Kept const& kept, OLEVERB& out)
    {
        OLEVERB given = kept;
        given.lpszVerbName = taskString(kept.lpszVerbName);
        out = given;
    }
};

HRESULT OleObject::SetClientSite(IOleClientSite* site)
{
    return m_surface.call([&] {
        IOleClientSite const* const current = m_surface.container().site();
        bool const isLost = current && !site;
        if (isLost)
            m_surface.close();
        else if (site != current)
            m_surface.inPlace().leave(InPlace::WindowThen::Parked);
        m_surface.container().setSite(site);
        if (site)
            m_surface.events().begin();
        else if (isLost)
            m_surface.events().end(); // also where closing has led to another activation
    });
}

HRESULT OleObject::GetClientSite(IOleClientSite** site)
{
    return m_surface.call([&] {
        deref(site) = nullptr;
        *site = ComPtr<IOleClientSite>(m_surface.container().site()).detach();
    });
}

HRESULT OleObject::SetHostNames(LPCOLESTR, LPCOLESTR) { return S_OK; }

HRESULT OleObject::Close(DWORD saveOption)
{
    return m_surface.call([&] {
        ComPtr<IOleClientSite> const site = m_surface.container().site();
        if (saveOption != OLECLOSE_NOSAVE && m_surface.persistence().isDirty() && site)
            site->SaveObject();
        m_surface.close();
        if (ComPtr<IOleAdviseHolder> const holder = m_adviseHolder)
            holder->SendOnClose();
    });
}

HRESULT OleObject::SetMoniker(DWORD, IMoniker*) { return E_NOTIMPL; }

HRESULT OleObject::GetMoniker(DWORD, DWORD, IMoniker** moniker)
{
    return comCall([&] {
        deref(moniker) = nullptr;
        return E_NOTIMPL;
    });
}

HRESULT OleObject::InitFromData(IDataObject*, WINBOOL, DWORD) { return E_NOTIMPL; }

HRESULT OleObject::GetClipboardData(DWORD, IDataObject** data)
{
    return comCall([&] {
        deref(data) = nullptr;
        return E_NOTIMPL;
    });
}

HRESULT OleObject::DoVerb(LONG verb, MSG* message, IOleClientSite*, LONG, HWND parent, LPCRECT position)
{
    return m_surface.call([&] {
        InPlace& inPlace = m_surface.inPlace();
        InPlace::Offer const offer = {parent, position};
        switch (verb) {
        case OLEIVERB_PRIMARY:
        case OLEIVERB_UIACTIVATE:
            inPlace.activate(InPlace::Activation::WithFocus, offer);
            break;
        case OLEIVERB_SHOW:
        case OLEIVERB_INPLACEACTIVATE:
            inPlace.activate(InPlace::Activation::Visible, offer);
            break;
        case OLEIVERB_HIDE:
            inPlace.hide();
            return S_OK;
        case OLEIVERB_PROPERTIES:
            m_surface.browsing().showPages(parent);
            return S_OK;
        case OLEIVERB_DISCARDUNDOSTATE:
            return S_OK;
        default:
            return verb > 0 ? OLEOBJ_S_INVALIDVERB : E_NOTIMPL;
        }
        inPlace.forward(message);
        return S_OK;
    });
}

HRESULT OleObject::EnumVerbs(IEnumOLEVERB** enumerator)
{
    return comCall([&] {
        deref(enumerator) = nullptr;
        *enumerator =
            makeCounted<Enumerator<IEnumOLEVERB, OLEVERB>>(std::vector{kPrimaryVerb, kPropertiesVerb})
                .detach();
    });
}

HRESULT OleObject::Update() { return S_OK; }

HRESULT OleObject::IsUpToDate() { return S_OK; }

HRESULT OleObject::GetUserClassID(CLSID* classId)
{
    return comCall([&] { deref(classId) = m_surface.controlClass().classId; });
}

HRESULT OleObject::GetUserType(DWORD, LPOLESTR* text)
{
    return comCall([&] {
        deref(text) = nullptr;
        *text = taskString(m_surface.controlClass().name);
    });
}

HRESULT OleObject::SetExtent(DWORD aspect, SIZEL* extent)
{
    return comCall([&] {
        SIZEL const wanted = deref(extent);
        requireContent(aspect);
        if (wanted.cx == m_extent.cx && wanted.cy == m_extent.cy)
            return;
        m_extent = wanted;
        m_surface.persistence().setDirty();
    });
}

HRESULT OleObject::GetExtent(DWORD aspect, SIZEL* extent)
{
    return comCall([&] {
        deref(extent);
        requireContent(aspect);
        *extent = m_extent;
    });
}

IOleAdviseHolder* OleObject::adviseHolder()
{
    if (!m_adviseHolder)
        check(::CreateOleAdviseHolder(m_adviseHolder.put()));
    return m_adviseHolder.get();
}

HRESULT OleObject::Advise(IAdviseSink* sink, DWORD* cookie)
{
    return m_surface.call([&] {
        deref(cookie) = 0;
        return adviseHolder()->Advise(&deref(sink), cookie);
    });
}

HRESULT OleObject::Unadvise(DWORD cookie)
{
    return m_surface.call([&] { return adviseHolder()->Unadvise(cookie); });
}

HRESULT OleObject::EnumAdvise(IEnumSTATDATA** enumerator)
{
    return m_surface.call([&] {
        deref(enumerator) = nullptr;
        return adviseHolder()->EnumAdvise(enumerator);
    });
}

HRESULT OleObject::GetMiscStatus(DWORD aspect, DWORD* status)
{
    return comCall(
        [&] { deref(status) = aspect == DVASPECT_CONTENT ? m_surface.controlClass().miscStatus : 0; });
}

HRESULT OleObject::SetColorScheme(LOGPALETTE*) { return E_NOTIMPL; }

void OleObject::setWidth(long width) noexcept
{
    m_extent.cx = width;
    m_surface.persistence().setDirty();
}

void OleObject::notifySaved() noexcept
{
    if (ComPtr<IOleAdviseHolder> const holder = m_adviseHolder)
        holder->SendOnSave();
}

} // namespace quillet

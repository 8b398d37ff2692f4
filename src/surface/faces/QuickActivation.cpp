// IQuickActivate: one call for what a container otherwise sets up in a dozen.
#include "surface/faces/QuickActivation.h"

#include "base/RunTimeError.h"
#include "surface/Surface.h"

namespace quillet {

namespace {

/// Connects a sink that the container may leave out; its cookie, 0 for none.
DWORD connected(ConnectionPoint& point, IUnknown* sink)
{
    DWORD cookie = 0;
    if (sink)
        point.Advise(sink, &cookie); // a sink that does not serve the point is simply not connected
    return cookie;
}

} // namespace

HRESULT QuickActivation::QuickActivate(QACONTAINER* container, QACONTROL* control)
{
    return m_surface.call([&] {
        QACONTAINER const& given = deref(container);
        if (given.cbSize < sizeof(QACONTAINER) || deref(control).cbSize < sizeof(QACONTROL))
            throw RunTimeError(E_UNEXPECTED);
        check(m_surface.oleObject().SetClientSite(given.pClientSite));
        m_surface.container().setQuickAmbients(given);
        if (given.pAdviseSink)
            m_surface.view().SetAdvise(DVASPECT_CONTENT, 0, given.pAdviseSink);

        QACONTROL answer = {};
        answer.cbSize = control->cbSize;
        answer.dwMiscStatus = m_surface.controlClass().miscStatus;
        m_surface.view().GetViewStatus(&answer.dwViewStatus);
        answer.dwEventCookie = connected(m_surface.events().eventPoint(), given.pUnkEventSink);
        answer.dwPropNotifyCookie = connected(m_surface.events().notifyPoint(), given.pPropertyNotifySink);
        *control = answer;
    });
}

HRESULT QuickActivation::SetContentExtent(LPSIZEL extent)
{
    return m_surface.oleObject().SetExtent(DVASPECT_CONTENT, extent);
}

HRESULT QuickActivation::GetContentExtent(LPSIZEL extent)
{
    return m_surface.oleObject().GetExtent(DVASPECT_CONTENT, extent);
}

} // namespace quillet

// The site of one ActiveX control: everything that the control can ask its container.
#include "gallery/host/Site.h"

#include "gallery/host/Extender.h"
#include "gallery/host/Form.h"
#include "gallery/host/FormObject.h"
#include "gallery/host/HostedControl.h"
#include "gallery/host/InPlaceFrame.h"

namespace quillet::gallery {

HostedControl& Site::connected() const
{
    if (!m_control)
        throw RunTimeError(E_UNEXPECTED);
    return *m_control;
}

IUnknown* Site::inheritedInterface(REFIID iid) noexcept
{
    if (iid == __uuidof(IOleWindow) || iid == __uuidof(IOleInPlaceSite))
        return static_cast<IOleInPlaceSiteEx*>(this);
    return nullptr;
}

Variant Site::invoke(DISPID id, WORD flags, Arguments const& arguments)
{
    HostedControl& control = connected();
    return invokeMember<FormControl>(ambientRows(), control, id, flags, arguments);
}

HRESULT STDMETHODCALLTYPE Site::GetContainer(IOleContainer** out)
{
    return comCall([&] { deref(out) = ComPtr<IOleContainer>(&connected().form().object()).detach(); });
}

HRESULT STDMETHODCALLTYPE Site::GetExtendedControl(IDispatch** out)
{
    return comCall([&] { deref(out) = ComPtr<IDispatch>(&connected().extender()).detach(); });
}

HRESULT STDMETHODCALLTYPE Site::TransformCoords(POINTL* himetric, POINTF* container, DWORD flags)
{
    return comCall([&] {
        POINTL& inHimetric = deref(himetric);
        POINTF& inTwips = deref(container);
        if (flags & XFORMCOORDS_HIMETRICTOCONTAINER) {
            inTwips.x = static_cast<float>(twipsOfHimetric(inHimetric.x));
            inTwips.y = static_cast<float>(twipsOfHimetric(inHimetric.y));
            return S_OK;
        }
        if (!(flags & XFORMCOORDS_CONTAINERTOHIMETRIC))
            return E_INVALIDARG;
        inHimetric.x = himetricOfTwips(static_cast<long>(inTwips.x));
        inHimetric.y = himetricOfTwips(static_cast<long>(inTwips.y));
        return S_OK;
    });
}

HRESULT STDMETHODCALLTYPE Site::TranslateAccelerator(MSG* message, DWORD)
{
    return comCall([&] { return connected().form().keyboard().offered(deref(message)) ? S_OK : S_FALSE; });
}

HRESULT STDMETHODCALLTYPE Site::OnFocus(BOOL)
{
    return comCall([&] { connected().form().focus().update(); });
}

HRESULT STDMETHODCALLTYPE Site::OnUIActivate()
{
    return comCall([&] { connected().form().focus().update(); });
}

HRESULT STDMETHODCALLTYPE Site::GetWindow(HWND* out)
{
    return comCall([&] { deref(out) = connected().parentWindow(); });
}

HRESULT STDMETHODCALLTYPE Site::GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document,
                                                 RECT* place, RECT* clip, OLEINPLACEFRAMEINFO* info)
{
    return comCall([&] {
        HostedControl& control = connected();
        if (!frame || !document || !place || !clip || !info)
            throw RunTimeError(E_POINTER);
        *place = control.pixels();
        *clip = *place;
        info->fMDIApp = FALSE;
        info->hwndFrame = control.form().window();
        info->haccel = nullptr;
        info->cAccelEntries = 0;
        *document = nullptr; // the document's window is the frame's
        *frame = ComPtr<IOleInPlaceFrame>(&control.form().frame()).detach();
    });
}

HRESULT STDMETHODCALLTYPE Site::OnPosRectChange(RECT const* place)
{
    return comCall([&] {
        HostedControl& control = connected();
        Resolution const& resolution = control.form().resolution();
        RECT const& pixels = deref(place);
        control.moveTo({resolution.twipsX(pixels.left), resolution.twipsY(pixels.top),
                        resolution.twipsX(pixels.right - pixels.left),
                        resolution.twipsY(pixels.bottom - pixels.top)});
    });
}

HRESULT STDMETHODCALLTYPE Site::OnInPlaceActivateEx(BOOL* noRedraw, DWORD)
{
    if (noRedraw)
        *noRedraw = FALSE;
    return S_OK;
}

} // namespace quillet::gallery

// The least container that a control takes for a whole one.
#include "bench/Container.h"

#include "base/Bstr.h"
#include "base/RunTimeError.h"
#include "kit/Fonts.h"

#include <cwchar>
#include <iterator>

namespace quillet::bench {

namespace {

HRESULT handOut(IUnknown* face, void** object)
{
    *object = face;
    return face ? S_OK : E_NOINTERFACE;
}

HRESULT answer(VARIANT* result, bool value)
{
    result->vt = VT_BOOL;
    result->boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
    return S_OK;
}

HRESULT answer(VARIANT* result, wchar_t const* text)
{
    result->bstrVal = Bstr(text).detach();
    result->vt = VT_BSTR;
    return S_OK;
}

/// Hundredths of a millimetre at 96 pixels an inch.
constexpr LONG himetricOf(LONG pixels) { return pixels * 2540 / 96; }

constexpr wchar_t const* kExtenderNames[] = {L"Name",        L"Default", L"Cancel",
                                             L"ToolTipText", L"TabStop", L"Container"};

} // namespace

HRESULT LateBound::QueryInterface(REFIID iid, void** object)
{
    return handOut(iid == IID_IDispatch || iid == IID_IUnknown ? this : nullptr, object);
}

HRESULT LateBound::GetTypeInfoCount(UINT* count)
{
    *count = 0;
    return S_OK;
}

HRESULT FormFace::GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids)
{
    bool const known = ::lstrcmpiW(names[0], L"hWnd") == 0;
    ids[0] = known ? 1 : DISPID_UNKNOWN;
    return known ? S_OK : DISP_E_UNKNOWNNAME;
}

HRESULT FormFace::Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*, UINT*)
{
    result->vt = VT_I4;
    result->lVal = HandleToLong(m_window);
    return S_OK;
}

HRESULT Extender::GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids)
{
    for (std::size_t i = 0; i < std::size(kExtenderNames); ++i)
        if (std::wcscmp(names[0], kExtenderNames[i]) == 0) {
            ids[0] = static_cast<DISPID>(i);
            return S_OK;
        }
    ids[0] = DISPID_UNKNOWN;
    return DISP_E_UNKNOWNNAME;
}

HRESULT Extender::Invoke(DISPID id, REFIID, LCID, WORD kind, DISPPARAMS*, VARIANT* result, EXCEPINFO*, UINT*)
{
    if (kind & DISPATCH_PROPERTYPUT)
        return S_OK;
    switch (id) {
    case 0:
        return answer(result, L"Command1");
    case 3:
        return answer(result, L"");
    case 5:
        result->vt = VT_DISPATCH;
        result->pdispVal = &m_form;
        return S_OK;
    default:
        return answer(result, id == 4); // in the tab order, and neither default nor cancel button
    }
}

HRESULT Siblings::QueryInterface(REFIID iid, void** object)
{
    bool const known = iid == IID_IUnknown || iid == IID_IOleContainer;
    return handOut(known ? static_cast<IOleContainer*>(this) : nullptr, object);
}

HRESULT Siblings::EnumObjects(DWORD, IEnumUnknown** enumerator)
{
    m_next = 0;
    *enumerator = this;
    return S_OK;
}

HRESULT Siblings::Next(ULONG count, IUnknown** controls, ULONG* fetched)
{
    ULONG given = 0;
    for (; given < count && m_next < m_controls.size(); ++given)
        controls[given] = ComPtr<IUnknown>(m_controls[m_next++]).detach();
    if (fetched)
        *fetched = given;
    return given == count ? S_OK : S_FALSE;
}

Frame::Frame(HWND window, IOleContainer* container)
    : m_window(window), m_container(container), m_font(kit::newFont(L"MS Shell Dlg", 8))
{
    kit::handleOf(deref(m_font.get())); // as a form that uses its font itself
}

HRESULT Frame::QueryInterface(REFIID iid, void** object)
{
    bool const known = iid == IID_IUnknown || iid == IID_IOleWindow || iid == IID_IOleInPlaceUIWindow ||
                       iid == IID_IOleInPlaceFrame;
    return handOut(known ? this : nullptr, object);
}

HRESULT Frame::GetWindow(HWND* window)
{
    *window = m_window;
    return S_OK;
}

HRESULT Site::QueryInterface(REFIID iid, void** object)
{
    if (iid == IID_IUnknown || iid == IID_IOleClientSite)
        return handOut(static_cast<IOleClientSite*>(this), object);
    if (iid == IID_IOleControlSite)
        return handOut(static_cast<IOleControlSite*>(this), object);
    if (iid == IID_IOleInPlaceSite || iid == IID_IOleWindow)
        return handOut(static_cast<IOleInPlaceSite*>(this), object);
    return handOut(iid == IID_IDispatch ? static_cast<IDispatch*>(this) : nullptr, object);
}

HRESULT Site::GetContainer(IOleContainer** container)
{
    *container = m_frame.container();
    return *container ? S_OK : E_NOINTERFACE;
}

HRESULT Site::GetExtendedControl(IDispatch** extender)
{
    *extender = &m_extender;
    return S_OK;
}

HRESULT Site::GetWindow(HWND* window)
{
    *window = m_window;
    return S_OK;
}

HRESULT Site::GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, RECT* position,
                               RECT* clip, OLEINPLACEFRAMEINFO* info)
{
    *frame = &m_frame;
    *document = nullptr;
    *position = m_position;
    *clip = m_position;
    info->fMDIApp = FALSE;
    info->hwndFrame = m_window;
    info->haccel = nullptr;
    info->cAccelEntries = 0;
    return S_OK;
}

HRESULT Site::GetTypeInfoCount(UINT* count)
{
    *count = 0;
    return S_OK;
}

HRESULT Site::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*, UINT*)
{
    switch (id) {
    case DISPID_AMBIENT_USERMODE:
        return answer(result, true);
    case DISPID_AMBIENT_FONT:
        result->vt = VT_DISPATCH;
        return m_frame.font()->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&result->pdispVal));
    default:
        return DISP_E_MEMBERNOTFOUND;
    }
}

Listener::Listener(IUnknown& control)
{
    ComPtr<IConnectionPointContainer> const points = query<IConnectionPointContainer>(&control);
    ComPtr<IEnumConnectionPoints> all;
    check(deref(points.get()).EnumConnectionPoints(all.put()));
    check(all->Next(1, m_point.put(), nullptr)); // the first is of its own events
    check(m_point->Advise(this, &m_cookie));
}

Listener::~Listener() { m_point->Unadvise(m_cookie); }

HRESULT SavedButton::QueryInterface(REFIID iid, void** object)
{
    return handOut(iid == IID_IPropertyBag || iid == IID_IUnknown ? this : nullptr, object);
}

HRESULT SavedButton::Read(LPCOLESTR name, VARIANT* value, IErrorLog*)
{
    if (std::wcscmp(name, L"Caption") == 0)
        return answer(value, kCaption);
    if (std::wcscmp(name, L"CentreCaption") == 0)
        return answer(value, true);
    if (std::wcscmp(name, L"HotBackColor") == 0) {
        value->vt = VT_I4;
        value->lVal = 0x00D8E9EC;
        return S_OK;
    }
    return E_INVALIDARG; // not saved: the default holds
}

Hosted::Hosted(IClassFactory& factory, IPropertyBag& saved, Frame& frame, HWND window, RECT const& position)
    : m_site(frame, window, position)
{
    check(factory.CreateInstance(nullptr, IID_IOleObject, reinterpret_cast<void**>(m_object.put())));
    check(m_object->SetClientSite(&m_site));
    auto const persistent = m_object.as<IPersistPropertyBag>();
    check(deref(persistent.get()).Load(&saved, nullptr));
    SIZEL extent = {himetricOf(position.right - position.left), himetricOf(position.bottom - position.top)};
    check(m_object->SetExtent(DVASPECT_CONTENT, &extent));
    check(m_object->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, &m_site, 0, window, &position));
}

Hosted::~Hosted()
{
    m_object->Close(OLECLOSE_NOSAVE);
    m_object->SetClientSite(nullptr);
}

} // namespace quillet::bench

// A recording counterpart of what a container gives to one control: its site, ambient properties and
// extender.
#include "kit/FakeSite.h"

namespace quillet::kit {

FakeSite::FakeSite(FakeForm& form, RECT const& at, std::wstring const& name)
    : position(at), clip{-32000, -32000, 32000, 32000}, m_form(&form), m_record(form.sharedRecord()),
      m_window(form.window()), m_frame(&form.frame()), m_container(&form.container()),
      m_extender(make<NamedObject>("Extender", m_record))
{
    hide(__uuidof(IOleInPlaceSiteEx));
    m_extender->offer(L"Name", Variant::ofString(name));
    m_extender->offer(L"ToolTipText", Variant::ofString(L""));
    m_extender->offer(L"Default", Variant::ofBool(false));
    m_extender->offer(L"TabStop", Variant::ofBool(true));
    m_extender->offer(L"Container", Variant::ofDispatch(&form.object()));
    m_extender->offer(L"Parent", Variant::ofDispatch(&form.object()));
    setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofBool(true));
    setAmbient(DISPID_AMBIENT_UIDEAD, Variant::ofBool(false));
    setAmbient(DISPID_AMBIENT_LOCALEID, Variant::ofLong(1033));
    setAmbient(DISPID_AMBIENT_BACKCOLOR, Variant::ofLong(static_cast<long>(0x8000000FU)));
    setAmbient(DISPID_AMBIENT_FORECOLOR, Variant::ofLong(static_cast<long>(0x80000012U)));
    form.join(*this);
}

void FakeSite::dismantle()
{
    if (m_form)
        m_form->leave(*this);
    leaveForm();
    inPlaceObject = nullptr;
    m_extender->removeAll();
}

void* FakeSite::faceOf(REFIID iid) noexcept
{
    if (iid == __uuidof(IOleInPlaceSite) || iid == __uuidof(IOleWindow))
        return static_cast<IOleInPlaceSiteEx*>(this);
    return Counterpart::faceOf(iid);
}

HRESULT FakeSite::asked(std::string const& method, std::string const& details)
{
    HRESULT result = S_OK;
    m_record->asked("Site." + method, result, details);
    return result;
}

template <class T, class Object> HRESULT FakeSite::handOut(char const* method, T** out, Object* object)
{
    *out = nullptr;
    HRESULT const result = asked(method);
    if (SUCCEEDED(result) && !m_record->handsOutNothing(std::string("Site.") + method))
        *out = ComPtr<T>(object).detach();
    return result;
}

STDMETHODIMP FakeSite::GetMoniker(DWORD, DWORD, IMoniker** moniker)
{
    *moniker = nullptr;
    return E_NOTIMPL;
}

STDMETHODIMP FakeSite::GetContainer(IOleContainer** container)
{
    return handOut("GetContainer", container, m_container.get());
}

STDMETHODIMP FakeSite::GetExtendedControl(IDispatch** extender)
{
    return handOut("GetExtendedControl", extender, m_extender.get());
}

STDMETHODIMP FakeSite::TranslateAccelerator(MSG* message, DWORD modifiers)
{
    HRESULT result = S_FALSE;
    m_record->asked("Site.TranslateAccelerator", result,
                    std::to_string(message->message) + ' ' + std::to_string(message->wParam) + ' ' +
                        std::to_string(modifiers));
    return result;
}

STDMETHODIMP FakeSite::OnFocus(BOOL gained) { return asked("OnFocus", gained ? "gained" : "lost"); }

STDMETHODIMP FakeSite::GetWindow(HWND* window)
{
    HRESULT const result = asked("GetWindow");
    *window = SUCCEEDED(result) && !m_record->handsOutNothing("Site.GetWindow") ? m_window : nullptr;
    return result;
}

STDMETHODIMP FakeSite::GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** documentOut,
                                        RECT* positionOut, RECT* clipOut, OLEINPLACEFRAMEINFO* info)
{
    *documentOut = nullptr;
    HRESULT const result = handOut("GetWindowContext", frame, m_frame.get());
    if (FAILED(result))
        return result;
    *documentOut = ComPtr<IOleInPlaceUIWindow>(document.get()).detach();
    *positionOut = position;
    *clipOut = clip;
    info->fMDIApp = FALSE;
    info->hwndFrame = m_window;
    info->haccel = nullptr;
    info->cAccelEntries = 0;
    return result;
}

STDMETHODIMP FakeSite::OnPosRectChange(RECT const* rectangle)
{
    HRESULT const result = asked("OnPosRectChange", textOf(rectangle));
    if (FAILED(result) || !rectangle)
        return result;
    position = *rectangle;
    return inPlaceObject ? inPlaceObject->SetObjectRects(&position, &clip) : S_OK;
}

STDMETHODIMP FakeSite::OnInPlaceActivateEx(BOOL* redraw, DWORD)
{
    if (redraw)
        *redraw = TRUE;
    return asked("OnInPlaceActivateEx");
}

STDMETHODIMP FakeSite::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*, UINT*)
{
    HRESULT failure = DISP_E_MEMBERNOTFOUND;
    std::string const method = "Ambient(" + std::to_string(id) + ')';
    if (!m_record->asked(method, failure))
        return failure;
    auto const found = ambients.find(id);
    if (found == ambients.end())
        return DISP_E_MEMBERNOTFOUND;
    if (result)
        *result = Variant(found->second).detach();
    return S_OK;
}

} // namespace quillet::kit

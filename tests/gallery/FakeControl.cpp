// A small ActiveX control for tests of the form host: it writes down what the host does with it.
#include "gallery/FakeControl.h"

#include <cwctype>

namespace quillet::gallery::test {

namespace {

constexpr wchar_t kClassName[] = L"QuilletGalleryFake";

/// The names that a fake control reads from its bag.
constexpr wchar_t const* kRead[] = {L"Caption", L"Font",  L"BackColor",   L"Left",  L"TabIndex",
                                    L"Default", L"Index", L"ToolTipText", L"Width", L"Visible"};

} // namespace

FakeControl::FakeControl(FakeTraits traits) : loaded(makeCounted<PropertyBag>()), m_traits(traits)
{
    if (!m_traits.accessKey)
        return;
    WORD const lower = static_cast<WORD>(std::towlower(m_traits.accessKey));
    WORD const upper = static_cast<WORD>(std::towupper(m_traits.accessKey));
    ACCEL rows[] = {{FALT, lower, 1}, {FALT, upper, 1}};
    m_accelerators.reset(::CreateAcceleratorTableW(rows, 2));
}

FakeControl::~FakeControl()
{
    if (m_window)
        ::SetWindowLongPtrW(m_window.get(), GWLP_USERDATA, 0);
}

Variant FakeControl::ambient(DISPID id) const
{
    auto const ambients = m_site.as<IDispatch>();
    DISPPARAMS none{};
    Variant value;
    check(ambients->Invoke(id, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, value.put(), nullptr, nullptr));
    return value;
}

ComPtr<IDispatch> FakeControl::extender() const
{
    ComPtr<IDispatch> result;
    auto const controlSite = m_site.as<IOleControlSite>();
    check(controlSite->GetExtendedControl(result.put()));
    return result;
}

void FakeControl::raise(DISPID id)
{
    DISPPARAMS none{};
    if (m_listener)
        m_listener->Invoke(id, IID_NULL, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr);
}

HRESULT STDMETHODCALLTYPE FakeControl::SetClientSite(IOleClientSite* site)
{
    m_site = site;
    return noted(site ? "SetClientSite" : "SetClientSite null");
}

HRESULT STDMETHODCALLTYPE FakeControl::DoVerb(LONG verb, MSG*, IOleClientSite*, LONG, HWND parent,
                                              RECT const* rect)
{
    noted("DoVerb " + std::to_string(verb));
    if (verb == OLEIVERB_INPLACEACTIVATE)
        makeWindow(parent, *rect);
    else if (verb == OLEIVERB_UIACTIVATE)
        ::SetFocus(m_window.get());
    else if (verb == OLEIVERB_HIDE || verb == OLEIVERB_SHOW)
        ::ShowWindow(m_window.get(), verb == OLEIVERB_HIDE ? SW_HIDE : SW_SHOWNA);
    else
        return E_NOTIMPL;
    return S_OK;
}

HRESULT STDMETHODCALLTYPE FakeControl::Unadvise(DWORD cookie)
{
    if (cookie == 12)
        m_listener.reset();
    return noted("Unadvise " + std::to_string(cookie));
}

HRESULT STDMETHODCALLTYPE FakeControl::TranslateAccelerator(MSG* message)
{
    if (message->message != WM_KEYDOWN)
        return S_FALSE;
    noted("TranslateAccelerator " + std::to_string(message->wParam));
    return m_traits.usedKey && message->wParam == m_traits.usedKey ? S_OK : S_FALSE;
}

HRESULT STDMETHODCALLTYPE FakeControl::GetControlInfo(CONTROLINFO* info)
{
    info->hAccel = m_accelerators.get();
    info->cAccel = m_accelerators ? 2 : 0;
    info->dwFlags = m_traits.infoFlags;
    return S_OK;
}

HRESULT STDMETHODCALLTYPE FakeControl::Load(IPropertyBag* bag, IErrorLog*)
{
    noted("Load");
    for (wchar_t const* const name : kRead) {
        Variant value;
        if (SUCCEEDED(bag->Read(name, value.put(), nullptr)))
            loaded->set(name, value);
    }
    if (Variant const* const text = loaded->find(L"Caption"))
        caption = text->toString();
    return m_traits.loadResult;
}

HRESULT STDMETHODCALLTYPE FakeControl::Save(IPropertyBag* bag, BOOL, BOOL)
{
    Variant value = Variant::ofString(caption.view());
    return bag->Write(L"Caption", value.address());
}

HRESULT STDMETHODCALLTYPE FakeControl::FindConnectionPoint(REFIID iid, IConnectionPoint** out)
{
    if (iid != kFakeEvents)
        return CONNECT_E_NOCONNECTION;
    *out = ComPtr<IConnectionPoint>(this).detach();
    return S_OK;
}

HRESULT STDMETHODCALLTYPE FakeControl::Advise(IUnknown* sink, DWORD* cookie)
{
    noted("Advise events");
    m_listener = query<IDispatch>(sink, kFakeEvents);
    *cookie = 12;
    return m_listener ? S_OK : CONNECT_E_CANNOTCONNECT;
}

HRESULT STDMETHODCALLTYPE FakeControl::GetGUID(DWORD kind, GUID* out)
{
    if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID)
        return E_INVALIDARG;
    *out = kFakeEvents;
    return S_OK;
}

DISPID FakeControl::idOf(std::wstring_view name)
{
    return sameName(name, L"Caption") ? kCaptionId : DISPID_UNKNOWN;
}

Variant FakeControl::invoke(DISPID id, WORD flags, Arguments const& arguments)
{
    if (id == kCaptionId && isPut(flags)) {
        caption = arguments.at(0).toString();
        return {};
    }
    if (id == kCaptionId)
        return Variant::ofString(caption.view());
    if (id != DISPID_DOCLICK || !m_traits.hasClickMethod)
        throw RunTimeError(DISP_E_MEMBERNOTFOUND);
    ++clicks;
    return {};
}

IUnknown* FakeControl::inheritedInterface(REFIID iid) noexcept
{
    if (iid == kFakeFace)
        return static_cast<IDispatch*>(this);
    if (iid == __uuidof(IOleWindow))
        return static_cast<IOleInPlaceObject*>(this);
    if (iid == __uuidof(IProvideClassInfo))
        return static_cast<IProvideClassInfo2*>(this);
    return nullptr;
}

void FakeControl::makeWindow(HWND parent, RECT const& rect)
{
    place = rect;
    WNDCLASSW row{};
    row.lpfnWndProc = windowProc;
    row.hInstance = ::GetModuleHandleW(nullptr);
    row.lpszClassName = kClassName;
    ::RegisterClassW(&row); // fails quietly the second time
    m_window.reset(::CreateWindowExW(0, kClassName, L"", WS_CHILD | WS_VISIBLE, rect.left, rect.top,
                                     rect.right - rect.left, rect.bottom - rect.top, parent, nullptr,
                                     ::GetModuleHandleW(nullptr), nullptr));
    ::SetWindowLongPtrW(m_window.get(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

void FakeControl::gotFocus()
{
    noted("focus");
    if (auto const controlSite = m_site.as<IOleControlSite>())
        controlSite->OnFocus(TRUE);
}

LRESULT CALLBACK FakeControl::windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    auto* const control = reinterpret_cast<FakeControl*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
    if (control && message == WM_SETFOCUS)
        control->gotFocus();
    return ::DefWindowProcW(window, message, wParam, lParam);
}

} // namespace quillet::gallery::test

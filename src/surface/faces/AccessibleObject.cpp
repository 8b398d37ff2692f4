// IAccessible: what screen readers and test tools see of a control.
#include "surface/faces/AccessibleObject.h"

#include "base/Bstr.h"
#include "base/ComCall.h"
#include "base/RunTimeError.h"
#include "base/Variant.h"
#include "surface/Surface.h"
#include "surface/faces/Automation.h"

namespace quillet {

namespace {

/// Loaded when somebody asks: most forms run without it.
constexpr wchar_t kLibrary[] = L"oleacc.dll";

std::wstring toolTipOf(Surface const& surface)
{
    auto const text = [&] { return surface.container().extenderProperty(L"ToolTipText").toString(); };
    return std::wstring(orFallback(Bstr(), text).view());
}

/// Answers S_FALSE for an empty text.
HRESULT answer(BSTR* out, std::wstring const& text)
{
    if (text.empty())
        return S_FALSE;
    *out = Bstr(text).detach();
    return S_OK;
}

/// Answers the object itself, or that there is none.
HRESULT answerSelf(VARIANT* out, bool self)
{
    *out = (self ? Variant::ofLong(CHILDID_SELF) : Variant()).detach();
    return self ? S_OK : S_FALSE;
}

HWND windowOf(Surface const& surface)
{
    HWND const window = surface.accessibleWindow();
    if (!window)
        throw RunTimeError(E_FAIL);
    return window;
}

RECT placeOf(Surface const& surface)
{
    RECT place = {};
    ::GetWindowRect(windowOf(surface), &place);
    return place;
}

bool hasFocus(Surface const& surface)
{
    HWND const window = surface.accessibleWindow();
    return window && ::GetFocus() == window;
}

LONG stateOf(Surface const& surface)
{
    LONG state = surface.accessibleLook().state;
    state |= surface.enabled() ? STATE_SYSTEM_FOCUSABLE : STATE_SYSTEM_UNAVAILABLE;
    if (hasFocus(surface))
        state |= STATE_SYSTEM_FOCUSED;
    if (!::IsWindowVisible(surface.accessibleWindow()))
        state |= STATE_SYSTEM_INVISIBLE;
    return state;
}

} // namespace

template <class Body> HRESULT AccessibleObject::call(Body&& body) noexcept
{
    return comCall([&] {
        if (!m_surface)
            throw RunTimeError(CO_E_OBJNOTCONNECTED);
        auto const alive = m_surface->keepAlive();
        return body(*m_surface);
    });
}

template <class Body> HRESULT AccessibleObject::call(VARIANT const& child, Body&& body) noexcept
{
    return call([&](Surface& surface) {
        if (child.vt != VT_I4 || child.lVal != CHILDID_SELF)
            throw RunTimeError(E_INVALIDARG);
        return body(surface);
    });
}

AccessibleObject::AccessibleObject(Surface& surface)
    : m_surface(&surface), m_library(::LoadLibraryW(kLibrary))
{}

LRESULT AccessibleObject::handOver(WPARAM request) noexcept
{
    auto const answer =
        functionOf<LRESULT STDAPICALLTYPE(REFIID, WPARAM, IUnknown*)>(m_library.get(), "LresultFromObject");
    return answer ? answer(__uuidof(IAccessible), request, static_cast<IAccessible*>(this)) : 0;
}

IUnknown* AccessibleObject::inheritedInterface(REFIID iid) noexcept
{
    return iid == IID_IDispatch ? static_cast<IAccessible*>(this) : nullptr;
}

ITypeInfo& AccessibleObject::typeInfo()
{
    if (!m_typeInfo) {
        ComPtr<ITypeLib> library;
        check(::LoadTypeLibEx(kLibrary, REGKIND_NONE, library.put()));
        check(library->GetTypeInfoOfGuid(__uuidof(IAccessible), m_typeInfo.put()));
    }
    return *m_typeInfo.get();
}

HRESULT AccessibleObject::GetTypeInfoCount(UINT* count)
{
    return comCall([&] { deref(count) = 1; });
}

HRESULT AccessibleObject::GetTypeInfo(UINT index, LCID, ITypeInfo** info)
{
    return comCall([&] {
        deref(info) = nullptr;
        if (index != 0)
            throw RunTimeError(DISP_E_BADINDEX);
        *info = ComPtr<ITypeInfo>(&typeInfo()).detach();
    });
}

HRESULT AccessibleObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids)
{
    return comCall([&] { return typeInfo().GetIDsOfNames(&deref(names), count, &deref(ids)); });
}

HRESULT AccessibleObject::Invoke(DISPID id, REFIID, LCID, WORD kind, DISPPARAMS* arguments, VARIANT* result,
                                 EXCEPINFO* exception, UINT* badArgument)
{
    return comCall([&] {
        requireReadable(deref(arguments));
        auto* const self = static_cast<IAccessible*>(this);
        return typeInfo().Invoke(self, id, kind, arguments, result, exception, badArgument);
    });
}

/// The window, as the system describes every window.
HRESULT AccessibleObject::get_accParent(IDispatch** parent)
{
    return call([&](Surface& surface) {
        deref(parent) = nullptr;
        auto const find = functionOf<HRESULT STDAPICALLTYPE(HWND, DWORD, REFIID, void**)>(
            m_library.get(), "AccessibleObjectFromWindow");
        if (!find)
            return E_FAIL;
        return find(windowOf(surface), static_cast<DWORD>(OBJID_WINDOW), IID_IDispatch,
                    reinterpret_cast<void**>(parent));
    });
}

HRESULT AccessibleObject::get_accChildCount(long* count)
{
    return call([&](Surface&) {
        deref(count) = 0;
        return S_OK;
    });
}

HRESULT AccessibleObject::get_accChild(VARIANT child, IDispatch** found)
{
    return call(child, [&](Surface&) {
        deref(found) = nullptr;
        return S_FALSE;
    });
}

/// A button without a caption has its tooltip for a name.
HRESULT AccessibleObject::get_accName(VARIANT child, BSTR* name)
{
    return call(child, [&](Surface& surface) {
        deref(name) = nullptr;
        std::wstring const own = surface.accessibleLook().name;
        return answer(name, own.empty() ? toolTipOf(surface) : own);
    });
}

HRESULT AccessibleObject::get_accDescription(VARIANT child, BSTR* description)
{
    return call(child, [&](Surface& surface) {
        deref(description) = nullptr;
        return surface.accessibleLook().name.empty() ? S_FALSE : answer(description, toolTipOf(surface));
    });
}

HRESULT AccessibleObject::get_accRole(VARIANT child, VARIANT* role)
{
    return call(child, [&](Surface& surface) {
        deref(role) = Variant::ofLong(surface.accessibleLook().role).detach();
        return S_OK;
    });
}

HRESULT AccessibleObject::get_accState(VARIANT child, VARIANT* state)
{
    return call(child, [&](Surface& surface) {
        deref(state) = Variant::ofLong(stateOf(surface)).detach();
        return S_OK;
    });
}

HRESULT AccessibleObject::get_accKeyboardShortcut(VARIANT child, BSTR* shortcut)
{
    return call(child, [&](Surface& surface) {
        deref(shortcut) = nullptr;
        std::wstring const key = surface.accessibleLook().accessKey;
        return answer(shortcut, key.empty() ? key : L"Alt+" + key);
    });
}

HRESULT AccessibleObject::get_accFocus(VARIANT* child)
{
    return call([&](Surface& surface) { return answerSelf(&deref(child), hasFocus(surface)); });
}

HRESULT AccessibleObject::get_accSelection(VARIANT* children)
{
    return call([&](Surface&) { return answerSelf(&deref(children), false); });
}

HRESULT AccessibleObject::get_accDefaultAction(VARIANT child, BSTR* action)
{
    return call(child, [&](Surface& surface) {
        deref(action) = nullptr;
        return answer(action, surface.accessibleLook().action);
    });
}

HRESULT AccessibleObject::accSelect(long flags, VARIANT child)
{
    return call(child, [&](Surface& surface) {
        if (flags != SELFLAG_TAKEFOCUS)
            throw RunTimeError(E_INVALIDARG);
        if (!surface.enabled() || !surface.inPlace().isActive())
            return S_FALSE;
        surface.inPlace().activate(InPlace::Activation::WithFocus);
        return S_OK;
    });
}

HRESULT AccessibleObject::accLocation(long* left, long* top, long* width, long* height, VARIANT child)
{
    return call(child, [&](Surface& surface) {
        RECT const place = placeOf(surface);
        deref(left) = place.left;
        deref(top) = place.top;
        deref(width) = place.right - place.left;
        deref(height) = place.bottom - place.top;
        return S_OK;
    });
}

HRESULT AccessibleObject::accNavigate(long, VARIANT start, VARIANT* end)
{
    return call(start, [&](Surface&) { return answerSelf(&deref(end), false); });
}

HRESULT AccessibleObject::accHitTest(long left, long top, VARIANT* child)
{
    return call([&](Surface& surface) {
        RECT const place = placeOf(surface);
        return answerSelf(&deref(child), ::PtInRect(&place, {left, top}) != FALSE);
    });
}

HRESULT AccessibleObject::accDoDefaultAction(VARIANT child)
{
    return call(child, [&](Surface& surface) {
        if (!surface.enabled())
            return DISP_E_MEMBERNOTFOUND;
        surface.doDefaultAction();
        return S_OK;
    });
}

// Members that buttons have no answer for.

HRESULT AccessibleObject::get_accValue(VARIANT, BSTR* value)
{
    return comCall([&] {
        deref(value) = nullptr;
        return DISP_E_MEMBERNOTFOUND;
    });
}

HRESULT AccessibleObject::get_accHelp(VARIANT, BSTR* help)
{
    return comCall([&] {
        deref(help) = nullptr;
        return DISP_E_MEMBERNOTFOUND;
    });
}

HRESULT AccessibleObject::get_accHelpTopic(BSTR* file, VARIANT, long* topic)
{
    return comCall([&] {
        deref(file) = nullptr;
        deref(topic) = 0;
        return DISP_E_MEMBERNOTFOUND;
    });
}

HRESULT AccessibleObject::put_accName(VARIANT, BSTR) { return DISP_E_MEMBERNOTFOUND; }

HRESULT AccessibleObject::put_accValue(VARIANT, BSTR) { return DISP_E_MEMBERNOTFOUND; }

HRESULT AccessibleObject::GetWindow(HWND* window)
{
    return call([&](Surface& surface) {
        deref(window) = nullptr;
        *window = windowOf(surface);
        return S_OK;
    });
}

HRESULT AccessibleObject::ContextSensitiveHelp(WINBOOL) { return E_NOTIMPL; }

} // namespace quillet

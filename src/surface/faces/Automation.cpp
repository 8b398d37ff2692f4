// A control's dual interface: late-bound calls go through the type library.
#include "surface/faces/Automation.h"

#include "base/Module.h"
#include "base/RunTimeError.h"
#include "surface/Surface.h"

#include <olectl.h>

#include <algorithm>

namespace quillet {

namespace {

/// The type library in the component's own file. The system keeps one copy while anybody holds it.
ComPtr<ITypeLib> ownTypeLibrary()
{
    wchar_t path[MAX_PATH];
    DWORD const length = ::GetModuleFileNameW(moduleInstance(), path, MAX_PATH);
    if (length == 0 || length == MAX_PATH)
        throw RunTimeError(TYPE_E_CANTLOADLIBRARY);
    ComPtr<ITypeLib> library;
    check(::LoadTypeLibEx(path, REGKIND_NONE, library.put()));
    return library;
}

bool assignsObject(DISPPARAMS const& arguments) noexcept
{
    return arguments.cArgs == 1 &&
           (arguments.rgvarg->vt == VT_DISPATCH || arguments.rgvarg->vt == VT_UNKNOWN);
}

wchar_t lowered(wchar_t c) noexcept { return c >= L'A' && c <= L'Z' ? c + (L'a' - L'A') : c; }

/// Published names are plain letters.
bool sameName(std::wstring_view a, std::wstring_view b) noexcept
{
    return std::ranges::equal(a, b, {}, lowered, lowered);
}

/// Null for a name that no member has.
MemberName const* memberNamed(ControlClass const& controlClass, std::wstring_view name) noexcept
{
    for (MemberName const& member : controlClass.members)
        if (sameName(member.name, name))
            return &member;
    return nullptr;
}

} // namespace

void requireReadable(DISPPARAMS const& arguments)
{
    if ((arguments.cArgs && !arguments.rgvarg) || (arguments.cNamedArgs && !arguments.rgdispidNamedArgs))
        throw RunTimeError(E_INVALIDARG);
    for (UINT i = 0; i < arguments.cArgs; ++i)
        if (refersToNothing(arguments.rgvarg[i]))
            throw RunTimeError(DISP_E_TYPEMISMATCH);
}

ITypeInfo& TypeInfos::dispatchInfo(IID const& interfaceId)
{
    if (!m_dispatch)
        check(ownTypeLibrary()->GetTypeInfoOfGuid(interfaceId, m_dispatch.put()));
    return *m_dispatch.get();
}

ITypeInfo& TypeInfos::vtableInfo(IID const& interfaceId)
{
    if (m_vtable)
        return *m_vtable.get();
    // A dual interface is described twice; index -1 leads from the one description to the other.
    ITypeInfo& dispatch = dispatchInfo(interfaceId);
    HREFTYPE reference = 0;
    check(dispatch.GetRefTypeOfImplType(static_cast<UINT>(-1), &reference));
    check(dispatch.GetRefTypeInfo(reference, m_vtable.put()));
    return *m_vtable.get();
}

ComPtr<ITypeInfo> TypeInfos::classInfo(CLSID const& classId)
{
    ComPtr<ITypeInfo> info;
    check(ownTypeLibrary()->GetTypeInfoOfGuid(classId, info.put()));
    return info;
}

HRESULT Automation::getTypeInfo(Surface& surface, UINT index, ITypeInfo** info) noexcept
{
    return comCall([&] {
        deref(info) = nullptr;
        if (index != 0)
            throw RunTimeError(DISP_E_BADINDEX);
        ITypeInfo& found = m_infos.dispatchInfo(surface.controlClass().interfaceId);
        *info = ComPtr<ITypeInfo>(&found).detach();
    });
}

HRESULT Automation::getIdsOfNames(Surface& surface, LPOLESTR* names, UINT count, DISPID* ids) noexcept
{
    return comCall([&] {
        deref(names);
        deref(ids);
        // Most callers ask for one member: that is found here several times faster than in the type library.
        if (count == 1 && names[0])
            if (MemberName const* const member = memberNamed(surface.controlClass(), names[0])) {
                *ids = member->id;
                return S_OK;
            }
        return m_infos.dispatchInfo(surface.controlClass().interfaceId).GetIDsOfNames(names, count, ids);
    });
}

HRESULT Automation::invoke(Surface& surface, IDispatch* dual, DISPID id, WORD kind, DISPPARAMS* arguments,
                           VARIANT* result, EXCEPINFO* exception, UINT* badArgument) noexcept
{
    auto const alive = surface.keepAlive();
    return comCall([&] {
        requireReadable(deref(arguments));
        // A container presses a default or cancel button by this identifier, which no library publishes.
        if (id == DISPID_DOCLICK && (kind & DISPATCH_METHOD)) {
            surface.doClick();
            return S_OK;
        }
        ITypeInfo& info = m_infos.vtableInfo(surface.controlClass().interfaceId);
        HRESULT const done = info.Invoke(dual, id, kind, arguments, result, exception, badArgument);
        // Script assigns objects like values; the object properties take references.
        if (done == DISP_E_MEMBERNOTFOUND && kind == DISPATCH_PROPERTYPUT && assignsObject(*arguments))
            return info.Invoke(dual, id, DISPATCH_PROPERTYPUTREF, arguments, result, exception, badArgument);
        return done;
    });
}

} // namespace quillet

// A control's dual interface: late-bound calls go through the type library.
#include "surface/Automation.h"

#include "base/Module.h"
#include "base/RunTimeError.h"
#include "surface/Surface.h"

#include <olectl.h>

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

} // namespace

ITypeInfo& TypeInfos::interfaceInfo(IID const& interfaceId)
{
    if (m_interface)
        return *m_interface.get();
    ComPtr<ITypeInfo> dispatch;
    check(ownTypeLibrary()->GetTypeInfoOfGuid(interfaceId, dispatch.put()));
    // A dual interface is described twice; only the vtable description calls through the vtable.
    HREFTYPE reference = 0;
    if (FAILED(dispatch->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference))) {
        m_interface = dispatch;
        return *m_interface.get();
    }
    check(dispatch->GetRefTypeInfo(reference, m_interface.put()));
    return *m_interface.get();
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
        ITypeInfo& found = m_infos.interfaceInfo(surface.controlClass().interfaceId);
        *info = ComPtr<ITypeInfo>(&found).detach();
    });
}

HRESULT Automation::getIdsOfNames(Surface& surface, LPOLESTR* names, UINT count, DISPID* ids) noexcept
{
    return comCall([&] {
        deref(names);
        deref(ids);
        return m_infos.interfaceInfo(surface.controlClass().interfaceId).GetIDsOfNames(names, count, ids);
    });
}

HRESULT Automation::invoke(Surface& surface, IDispatch* dual, DISPID id, WORD kind, DISPPARAMS* arguments,
                           VARIANT* result, EXCEPINFO* exception, UINT* badArgument) noexcept
{
    auto const alive = surface.keepAlive();
    return comCall([&] {
        deref(arguments);
        // A container presses a default or cancel button by this identifier, which no library publishes.
        if (id == DISPID_DOCLICK && (kind & DISPATCH_METHOD)) {
            surface.onClick();
            return S_OK;
        }
        return m_infos.interfaceInfo(surface.controlClass().interfaceId)
            .Invoke(dual, id, kind, arguments, result, exception, badArgument);
    });
}

} // namespace quillet

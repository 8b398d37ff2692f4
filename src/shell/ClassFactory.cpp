// Makes controls and property pages for hosts.
#include "shell/ClassFactory.h"

namespace quillet {

HRESULT ClassFactory::QueryInterface(REFIID iid, void** object)
{
    if (!object)
        return E_POINTER;
    *object = nullptr;
    if (iid != IID_IUnknown && iid != IID_IClassFactory)
        return E_NOINTERFACE;
    AddRef();
    *object = static_cast<IClassFactory*>(this);
    return S_OK;
}

ULONG ClassFactory::AddRef() { return static_cast<ULONG>(::InterlockedIncrement(&m_references)); }

ULONG ClassFactory::Release()
{
    LONG const left = ::InterlockedDecrement(&m_references);
    if (left == 0)
        delete this;
    return static_cast<ULONG>(left);
}

HRESULT ClassFactory::CreateInstance(IUnknown* outer, REFIID iid, void** object)
{
    return m_create(outer, iid, object);
}

HRESULT ClassFactory::LockServer(WINBOOL lock)
{
    if (lock)
        addLiveObject();
    else
        removeLiveObject();
    return S_OK;
}

} // namespace quillet

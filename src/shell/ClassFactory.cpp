// Makes controls and property pages for hosts.
#include "shell/ClassFactory.h"

namespace quillet {

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

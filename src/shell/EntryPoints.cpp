// What Windows and the component runtime call.
#include "base/ComCall.h"
#include "base/ComPtr.h"
#include "base/Compiler.h"
#include "base/Module.h"
#include "base/RunTimeError.h"
#include "controls/optioncheck/InnerButton.h"
#include "pages/PageClass.h"
#include "shell/ClassFactory.h"
#include "shell/ClassTable.h"
#include "shell/Registration.h"
#include "surface/window/SurfaceWindow.h"
#include "surface/window/ThreadState.h"

#include <windows.h>

// The language's run time holds memory for exceptions that would find no other, and leaves it behind when a
// library is unloaded unless it is told.
namespace __gnu_cxx {
void __freeres();
}

using namespace quillet;

namespace {

/// Null for a class that the component does not have.
CreateFunction creatorOf(CLSID const& classId) noexcept
{
    if (ClassRow const* const row = findClass(classId))
        return row->controlClass.create;
    for (PageClass const* const page : kPageClasses)
        if (page->classId == classId)
            return page->create;
    return nullptr;
}

} // namespace

extern "C" QV_CALLED_BY_OTHERS BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void* processEnds)
{
    switch (reason) {
    case DLL_PROCESS_ATTACH:
        setModuleInstance(instance);
        return attachThreadStates();
    case DLL_THREAD_DETACH:
        detachThreadState();
        return TRUE;
    case DLL_PROCESS_DETACH:
        if (processEnds) // Windows takes everything back, and other threads are gone in the middle of things
            return TRUE;
        SurfaceWindow::unregisterClass();
        InnerButton::unregisterClass();
        detachThreadStates();
        __gnu_cxx::__freeres();
        return TRUE;
    default:
        return TRUE;
    }
}

extern "C" QV_CALLED_BY_OTHERS HRESULT WINAPI DllGetClassObject(REFCLSID classId, REFIID iid, void** object)
{
    return comCall([&] {
        deref(object) = nullptr;
        CreateFunction const create = creatorOf(classId);
        if (!create)
            return CLASS_E_CLASSNOTAVAILABLE;
        return makeCounted<ClassFactory>(create)->QueryInterface(iid, object);
    });
}

extern "C" QV_CALLED_BY_OTHERS HRESULT WINAPI DllCanUnloadNow()
{
    return liveObjects() == 0 ? S_OK : S_FALSE;
}

extern "C" QV_CALLED_BY_OTHERS HRESULT WINAPI DllRegisterServer()
{
    return comCall([] { registerWhereAllowed(); });
}

extern "C" QV_CALLED_BY_OTHERS HRESULT WINAPI DllUnregisterServer()
{
    return comCall([] {
        unregisterComponent(Scope::User);
        unregisterComponent(Scope::Machine);
    });
}

/// regsvr32 /n /i:user: for the user alone.
extern "C" QV_CALLED_BY_OTHERS HRESULT WINAPI DllInstall(BOOL install, LPCWSTR commandLine)
{
    if (!commandLine || !*commandLine)
        return install ? DllRegisterServer() : DllUnregisterServer();
    if (::CompareStringOrdinal(commandLine, -1, L"user", -1, TRUE) != CSTR_EQUAL)
        return E_INVALIDARG;
    return comCall([&] {
        if (install)
            registerComponent(Scope::User);
        else
            unregisterComponent(Scope::User);
    });
}

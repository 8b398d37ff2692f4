// Registers the type library, and with it the interfaces that it describes.
#include "shell/TypeLibraryRegistration.h"

#include "base/ComPtr.h"
#include "shell/RegistryRows.h"
#include "typelib/Guids.h"

#include <oleauto.h>

namespace quillet {

namespace {

constexpr WORD kMajor = 1;
constexpr WORD kMinor = 0;
constexpr bool kIs64Bit = sizeof(void*) == 8;

/// Windows writes type libraries below HKEY_CLASSES_ROOT. This makes that the key of one scope for a while.
class ClassesRootScope {
public:
    explicit ClassesRootScope(Scope scope) : m_classes(classesForWriting(scope))
    {
        enablePerUserRegistration();
        checkStatus(::RegOverridePredefKey(HKEY_CLASSES_ROOT, m_classes.get()));
    }
    ~ClassesRootScope() { ::RegOverridePredefKey(HKEY_CLASSES_ROOT, nullptr); }
    ClassesRootScope(ClassesRootScope const&) = delete;
    ClassesRootScope& operator=(ClassesRootScope const&) = delete;

private:
    /// Without this call, Windows' type library functions pay no heed to where HKEY_CLASSES_ROOT points.
    /// Older and other systems do not have it, and do not need it.
    static void enablePerUserRegistration() noexcept
    {
        using Function = void WINAPI();
        auto* const function = reinterpret_cast<Function*>(reinterpret_cast<void*>(
            ::GetProcAddress(::GetModuleHandleW(L"oleaut32.dll"), "OaEnablePerUserTLibRegistration")));
        if (function)
            function();
    }

    UniqueKey m_classes;
};

bool isRegisteredFrom(Scope scope, std::wstring const& componentPath)
{
    std::wstring const key =
        L"TypeLib\\" + guidText(kLibraryId) + L"\\1.0\\0\\" + (kIs64Bit ? L"win64" : L"win32");
    return samePath(classesValue(scope, key), componentPath);
}

} // namespace

void registerTypeLibrary(Scope scope, std::wstring const& componentPath)
{
    ComPtr<ITypeLib> library;
    check(::LoadTypeLibEx(componentPath.c_str(), REGKIND_NONE, library.put()));
    std::wstring path = componentPath;
    std::wstring helpFolder = componentPath.substr(0, componentPath.rfind(L'\\'));
    ClassesRootScope const classes(scope);
    check(::RegisterTypeLib(library.get(), path.data(), helpFolder.data()));
}

void unregisterTypeLibrary(Scope scope, std::wstring const& componentPath)
{
    if (!isRegisteredFrom(scope, componentPath))
        return;
    ClassesRootScope const classes(scope);
    check(::UnRegisterTypeLib(kLibraryId, kMajor, kMinor, LOCALE_NEUTRAL, kIs64Bit ? SYS_WIN64 : SYS_WIN32));
}

} // namespace quillet

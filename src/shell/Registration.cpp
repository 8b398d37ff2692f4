// Registers the component's classes and its type library, and removes them again.
#include "shell/Registration.h"

#include "base/Module.h"
#include "shell/ClassTable.h"
#include "shell/RegistryRows.h"
#include "shell/RegistryWriter.h"
#include "shell/TypeLibraryRegistration.h"

#include <iterator>

namespace quillet {

namespace {

/// The registry's view for the other architecture, where a sister of this component may be registered.
constexpr REGSAM kOtherView = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;

std::wstring componentPath()
{
    wchar_t path[MAX_PATH];
    DWORD const length = ::GetModuleFileNameW(moduleInstance(), path, static_cast<DWORD>(std::size(path)));
    if (length == 0 || length == std::size(path))
        throw RunTimeError(HRESULT_FROM_WIN32(ERROR_BUFFER_OVERFLOW));
    return path;
}

std::wstring serverPath(Scope scope, ClassRow const& row, REGSAM view = 0)
{
    return classesValue(scope, classKey(row) + L"\\InprocServer32", view);
}

void removeTree(HKEY root, std::wstring const& key)
{
    LSTATUS const status = ::RegDeleteTreeW(root, key.c_str());
    if (status != ERROR_FILE_NOT_FOUND)
        checkStatus(status);
}

void unregisterClass(Scope scope, ClassRow const& row, std::wstring const& path)
{
    if (!samePath(serverPath(scope, row), path))
        return;
    UniqueKey const classes = classesForWriting(scope);
    removeTree(classes.get(), classKey(row));
    // Both architectures share the programmatic identifiers.
    if (!serverPath(scope, row, kOtherView).empty())
        return;
    for (std::wstring const& progId : {versionedProgId(row), currentProgId(row)})
        if (classesValue(scope, progId + L"\\CLSID") == guidText(row.controlClass().classId))
            removeTree(classes.get(), progId);
}

bool isRefusal(HRESULT result) noexcept
{
    return result == E_ACCESSDENIED || result == TYPE_E_REGISTRYACCESS;
}

} // namespace

void registerComponent(Scope scope)
{
    std::wstring const path = componentPath();
    UniqueKey const classes = classesForWriting(scope);
    RegistryWriter writer(classes.get());
    for (ClassRow const& row : classTable())
        for (RegistryRow const& value : registryRows(row, path))
            writer.write(value);
    registerTypeLibrary(scope, path);
    writer.commit();
}

void registerWhereAllowed()
{
    try {
        registerComponent(Scope::Machine);
    } catch (RunTimeError const& error) {
        if (!isRefusal(error.result()))
            throw;
        registerComponent(Scope::User);
    }
}

void unregisterComponent(Scope scope)
{
    std::wstring const path = componentPath();
    unregisterTypeLibrary(scope, path);
    for (ClassRow const& row : classTable())
        unregisterClass(scope, row, path);
}

} // namespace quillet

// Registers the component's classes and its type library, and removes them again.
#include "shell/Registration.h"

#include "base/Module.h"
#include "shell/ClassTable.h"
#include "shell/RegistryRows.h"
#include "shell/RegistryWriter.h"
#include "shell/TypeLibraryRegistration.h"

namespace quillet {

namespace {

/// The registry's view for the other architecture, where a sister of this component may be registered.
constexpr REGSAM kOtherView = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;

std::wstring componentPath()
{
    std::wstring path = modulePath();
    if (path.empty())
        throw RunTimeError(HRESULT_FROM_WIN32(ERROR_BUFFER_OVERFLOW));
    return path;
}

std::wstring serverPath(Scope scope, CLSID const& classId, REGSAM view = 0)
{
    return classesValue(scope, classKey(classId) + L"\\InprocServer32", view);
}

void removeTree(HKEY root, std::wstring const& key)
{
    LSTATUS const status = ::RegDeleteTreeW(root, key.c_str());
    if (status != ERROR_FILE_NOT_FOUND)
        checkStatus(status);
}

/// Whether the class was ours, and is gone now.
bool unregisterServer(Scope scope, CLSID const& classId, std::wstring const& path)
{
    if (!samePath(serverPath(scope, classId), path))
        return false;
    removeTree(classesForWriting(scope).get(), classKey(classId));
    return true;
}

void unregisterClass(Scope scope, ClassRow const& row, std::wstring const& path)
{
    CLSID const& classId = row.controlClass.classId;
    if (!unregisterServer(scope, classId, path))
        return;
    // Both architectures share the programmatic identifiers.
    if (!serverPath(scope, classId, kOtherView).empty())
        return;
    UniqueKey const classes = classesForWriting(scope);
    for (std::wstring const& progId : {versionedProgId(row), currentProgId(row)})
        if (classesValue(scope, progId + L"\\CLSID") == guidText(classId))
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
    for (PageClass const* const page : kPageClasses)
        for (RegistryRow const& value : registryRows(*page, path))
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
    for (PageClass const* const page : kPageClasses)
        unregisterServer(scope, page->classId, path);
}

} // namespace quillet

// A file of ActiveX controls, used straight from where it lies: nothing needs to be registered.
#pragma once

#include "base/ComPtr.h"
#include "base/Handles.h"
#include "gallery/app/ActivationContext.h"
#include "gallery/form/FormTree.h"
#include "gallery/host/ControlFactory.h"

#include <oaidl.h>
#include <windows.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quillet::gallery {

struct LibraryTraits {
    using Handle = HMODULE;
    static void close(HMODULE library) noexcept { ::FreeLibrary(library); }
};
using UniqueLibrary = UniqueHandle<LibraryTraits>;

/// One loaded file with its type library.
class ControlLibrary {
public:
    /// Throws RunTimeError when the file is no component or has no type library.
    explicit ControlLibrary(std::wstring const& path);
    ~ControlLibrary();
    ControlLibrary(ControlLibrary const&) = delete;
    ControlLibrary& operator=(ControlLibrary const&) = delete;

    /// The library's name, which a form writes before the dot: Quillet in Quillet.qvFlatCommand.
    std::wstring const& name() const noexcept { return m_name; }
    std::wstring const& path() const noexcept { return m_path; }
    ActivationContext const& manifest() const noexcept { return m_manifest; }
    /// Makes a control of the class of that name: by the manifest beside the file, and where there is none
    /// through the file's own class object.
    NewControl create(std::wstring_view className) const;

private:
    HRESULT make(CLSID const& classId, ComPtr<IUnknown>& object) const;
    ComPtr<ITypeInfo> findClass(std::wstring_view className) const;

    std::wstring m_path;
    UniqueLibrary m_library;
    ActivationContext m_manifest;
    ComPtr<ITypeLib> m_types;
    std::wstring m_name;
};

/// All files that the Object lines of forms name.
class ControlLibraries {
public:
    /// Files are looked for in the folders, in that order; only their names count, never a path.
    void add(std::vector<ObjectLine> const& objects, std::vector<std::wstring> const& folders);

    /// From the file that has a library of that name, else from what is registered on the machine.
    NewControl create(std::wstring_view library, std::wstring_view className) const;
    /// The classes of the library, its property pages among them, are known to the thread for one scope.
    ActivationContext::Scope known(std::wstring_view library) const;

private:
    ControlLibrary const* find(std::wstring_view library) const noexcept;
    void load(std::wstring const& path);

    std::vector<std::unique_ptr<ControlLibrary>> m_libraries;
    std::wstring m_troubles; ///< why files could not be used
};

bool isFile(std::wstring const& path) noexcept;

} // namespace quillet::gallery

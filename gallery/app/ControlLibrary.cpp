// A file of ActiveX controls, used straight from where it lies: nothing needs to be registered.
#include "gallery/app/ControlLibrary.h"

#include "base/Borrowed.h"
#include "base/Bstr.h"
#include "base/ComCall.h"
#include "base/RunTimeError.h"
#include "gallery/form/FileBytes.h"
#include "gallery/form/Names.h"

#include <algorithm>

namespace quillet::gallery {

namespace {

using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
using CanUnloadNow = HRESULT(STDAPICALLTYPE*)();

template <class Function> Function exported(HMODULE library, char const* name) noexcept
{
    // By way of a plain function pointer, as compilers mistrust the direct conversion.
    return reinterpret_cast<Function>(reinterpret_cast<void (*)()>(::GetProcAddress(library, name)));
}

ComPtr<ITypeLib> typesOf(std::wstring const& path)
{
    ComPtr<ITypeLib> types;
    check(::LoadTypeLibEx(path.c_str(), REGKIND_NONE, types.put()));
    return types;
}

std::wstring nameOf(ITypeLib& types, INT index)
{
    Bstr name;
    check(types.GetDocumentation(index, name.put(), nullptr, nullptr, nullptr));
    return std::wstring(name.view());
}

/// The same name with another ending, beside the component.
std::wstring manifestOf(std::wstring const& path)
{
    return path.substr(0, path.find_last_of(L'.')) + L".manifest";
}

NewControl createRegistered(std::wstring_view library, std::wstring_view className)
{
    std::wstring const programId = std::wstring(library) + L"." + std::wstring(className);
    CLSID id{};
    NewControl created;
    if (FAILED(::CLSIDFromProgID(programId.c_str(), &id)) ||
        FAILED(::CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, __uuidof(IUnknown),
                                  reinterpret_cast<void**>(created.object.put()))))
        created.failure = L"no file of the form has the class, and it is not registered";
    return created;
}

} // namespace

bool isFile(std::wstring const& path) noexcept
{
    DWORD const attributes = ::GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

ControlLibrary::ControlLibrary(std::wstring const& path)
    : m_path(path), m_library(::LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH)),
      m_manifest(manifestOf(path))
{
    if (!m_library)
        throw RunTimeError(HRESULT_FROM_WIN32(::GetLastError()));
    m_types = typesOf(path);
    m_name = nameOf(*m_types.get(), -1);
}

ControlLibrary::~ControlLibrary()
{
    m_types.reset();
    auto const canUnload = exported<CanUnloadNow>(m_library.get(), "DllCanUnloadNow");
    if (!canUnload || canUnload() != S_OK)
        m_library.release(); // somebody still holds an object of it: better a loaded file than a crash
    m_library.reset();
    ::CoFreeUnusedLibrariesEx(0, 0); // the runtime loaded it, too, for what the manifest made
}

ComPtr<ITypeInfo> ControlLibrary::findClass(std::wstring_view className) const
{
    UINT const count = m_types->GetTypeInfoCount();
    for (UINT i = 0; i < count; ++i) {
        TYPEKIND kind{};
        ComPtr<ITypeInfo> info;
        bool const isClass = SUCCEEDED(m_types->GetTypeInfoType(i, &kind)) && kind == TKIND_COCLASS;
        if (isClass && sameName(nameOf(*m_types.get(), static_cast<INT>(i)), className) &&
            SUCCEEDED(m_types->GetTypeInfo(i, info.put())))
            return info;
    }
    return {};
}

NewControl ControlLibrary::create(std::wstring_view className) const
{
    NewControl created;
    created.classInfo = findClass(className);
    if (!created.classInfo) {
        created.failure = L"the library has no class of that name";
        return created;
    }
    TypeRecord attributes(*created.classInfo.get());
    check(created.classInfo->GetTypeAttr(attributes.put()));
    if (FAILED(make(attributes->guid, created.object)))
        created.failure = L"its file does not make one";
    return created;
}

HRESULT ControlLibrary::make(CLSID const& classId, ComPtr<IUnknown>& object) const
{
    auto** const out = reinterpret_cast<void**>(object.put());
    if (m_manifest) {
        ActivationContext::Scope const active(&m_manifest);
        return ::CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, __uuidof(IUnknown), out);
    }
    auto const getClassObject = exported<GetClassObject>(m_library.get(), "DllGetClassObject");
    ComPtr<IClassFactory> factory;
    HRESULT made = E_NOINTERFACE;
    if (getClassObject)
        made = getClassObject(classId, __uuidof(IClassFactory), reinterpret_cast<void**>(factory.put()));
    return SUCCEEDED(made) ? factory->CreateInstance(nullptr, __uuidof(IUnknown), out) : made;
}

void ControlLibraries::add(std::vector<ObjectLine> const& objects, std::vector<std::wstring> const& folders)
{
    for (ObjectLine const& object : objects) {
        if (object.file.empty())
            continue;
        std::wstring const name(fileNameOf(object.file));
        auto const pathIn = [&](std::wstring const& folder) {
            return std::wstring(folder).append(L"\\").append(name);
        };
        auto const folder =
            std::ranges::find_if(folders, [&](std::wstring const& each) { return isFile(pathIn(each)); });
        if (folder != folders.end())
            load(pathIn(*folder));
        else
            m_troubles += L"; " + name + L" is neither beside the program nor beside the form";
    }
}

void ControlLibraries::load(std::wstring const& path)
{
    for (auto const& loaded : m_libraries)
        if (sameName(loaded->path(), path))
            return;
    try {
        m_libraries.push_back(std::make_unique<ControlLibrary>(path));
    } catch (RunTimeError const& error) {
        wchar_t text[32];
        ::wsprintfW(text, L" (0x%08lX)", error.result());
        m_troubles += L"; " + path + L" cannot be used" + text;
    }
}

ControlLibrary const* ControlLibraries::find(std::wstring_view library) const noexcept
{
    for (auto const& known : m_libraries)
        if (sameName(known->name(), library))
            return known.get();
    return nullptr;
}

NewControl ControlLibraries::create(std::wstring_view library, std::wstring_view className) const
{
    if (ControlLibrary const* const known = find(library))
        return known->create(className);
    NewControl created = createRegistered(library, className);
    if (!created.failure.empty())
        created.failure += m_troubles;
    return created;
}

ActivationContext::Scope ControlLibraries::known(std::wstring_view library) const
{
    ControlLibrary const* const found = find(library);
    return ActivationContext::Scope(found ? &found->manifest() : nullptr);
}

} // namespace quillet::gallery

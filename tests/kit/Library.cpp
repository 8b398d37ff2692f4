// The built component, loaded as a host loads it.
#include "kit/Library.h"

#include <iterator>

namespace quillet::kit {

namespace {

using GetClassObject = HRESULT STDMETHODCALLTYPE(REFCLSID, REFIID, void**);
using CanUnloadNow = HRESULT STDMETHODCALLTYPE();

} // namespace

std::wstring Library::path() { return folder() + L"quilbt.ocx"; }

std::wstring Library::folder()
{
    wchar_t program[MAX_PATH];
    ::GetModuleFileNameW(nullptr, program, static_cast<DWORD>(std::size(program)));
    std::wstring const whole(program);
    return whole.substr(0, whole.rfind(L'\\') + 1);
}

Library::Library(std::wstring const& file) : m_module(::LoadLibraryW(file.c_str())) {}

Library::~Library()
{
    if (m_module)
        ::FreeLibrary(m_module);
}

HRESULT Library::getClassObject(REFCLSID classId, REFIID iid, void** object) const
{
    auto* const function = entry<GetClassObject>("DllGetClassObject");
    return function ? function(classId, iid, object) : E_NOTIMPL;
}

HRESULT Library::canUnloadNow() const
{
    auto* const function = entry<CanUnloadNow>("DllCanUnloadNow");
    return function ? function() : E_NOTIMPL;
}

ComPtr<IClassFactory> Library::factory(REFCLSID classId) const
{
    ComPtr<IClassFactory> factory;
    getClassObject(classId, __uuidof(IClassFactory), reinterpret_cast<void**>(factory.put()));
    return factory;
}

ComPtr<IUnknown> Library::create(REFCLSID classId) const
{
    auto const classFactory = factory(classId);
    ComPtr<IUnknown> object;
    if (classFactory)
        classFactory->CreateInstance(nullptr, IID_IUnknown, reinterpret_cast<void**>(object.put()));
    return object;
}

} // namespace quillet::kit

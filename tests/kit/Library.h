// The built component, loaded as a host loads it.
#pragma once

#include "base/ComPtr.h"
#include "base/Handles.h"

#include <windows.h>

#include <string>

namespace quillet::kit {

/// Holds quilbt.ocx, which lies beside the test program, in memory; or a copy of it.
class Library {
public:
    explicit Library(std::wstring const& file = path()) : m_module(::LoadLibraryW(file.c_str())) {}

    static std::wstring path() { return folder() + L"quilbt.ocx"; }
    /// With the backslash at its end.
    static std::wstring folder()
    {
        wchar_t program[MAX_PATH];
        ::GetModuleFileNameW(nullptr, program, MAX_PATH);
        std::wstring const whole(program);
        return whole.substr(0, whole.rfind(L'\\') + 1);
    }

    bool loaded() const noexcept { return m_module.get() != nullptr; }
    HMODULE module() const noexcept { return m_module.get(); }

    HRESULT getClassObject(REFCLSID classId, REFIID iid, void** object) const
    {
        auto* const function =
            entry<HRESULT STDMETHODCALLTYPE(REFCLSID, REFIID, void**)>("DllGetClassObject");
        return function ? function(classId, iid, object) : E_NOTIMPL;
    }
    HRESULT canUnloadNow() const
    {
        auto* const function = entry<HRESULT STDMETHODCALLTYPE()>("DllCanUnloadNow");
        return function ? function() : E_NOTIMPL;
    }
    ComPtr<IClassFactory> factory(REFCLSID classId) const
    {
        ComPtr<IClassFactory> factory;
        getClassObject(classId, __uuidof(IClassFactory), reinterpret_cast<void**>(factory.put()));
        return factory;
    }
    /// A new object; empty when it cannot be made.
    ComPtr<IUnknown> create(REFCLSID classId) const
    {
        ComPtr<IUnknown> object;
        if (auto const maker = factory(classId))
            maker->CreateInstance(nullptr, IID_IUnknown, reinterpret_cast<void**>(object.put()));
        return object;
    }

    /// The entry point of that name; null when the component does not export it.
    template <class Function> Function* entry(char const* name) const
    {
        return functionOf<Function>(module(), name);
    }

private:
    UniqueLibrary m_module;
};

} // namespace quillet::kit

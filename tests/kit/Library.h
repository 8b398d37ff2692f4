// The built component, loaded as a host loads it.
#pragma once

#include "base/ComPtr.h"
#include "kit/NotCopied.h"

#include <windows.h>

#include <string>

namespace quillet::kit {

/// Holds quilbt.ocx, which lies beside the test program, in memory; or a copy of it.
class Library : NotCopied {
public:
    explicit Library(std::wstring const& file = path());
    ~Library();

    static std::wstring path();
    /// With the backslash at its end.
    static std::wstring folder();

    bool loaded() const noexcept { return m_module != nullptr; }
    HMODULE module() const noexcept { return m_module; }

    HRESULT getClassObject(REFCLSID classId, REFIID iid, void** object) const;
    HRESULT canUnloadNow() const;
    ComPtr<IClassFactory> factory(REFCLSID classId) const;
    /// A new object; empty when it cannot be made.
    ComPtr<IUnknown> create(REFCLSID classId) const;

    /// The entry point of that name; null when the component does not export it.
    template <class Function> Function* entry(char const* name) const
    {
        return reinterpret_cast<Function*>(reinterpret_cast<void*>(::GetProcAddress(m_module, name)));
    }

private:
    HMODULE m_module;
};

} // namespace quillet::kit

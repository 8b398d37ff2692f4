// Makes controls and property pages for hosts.
#pragma once

#include "base/Module.h"
#include "shell/ClassTable.h"

#include <windows.h>

#include <unknwn.h>

namespace quillet {

/// The factory of one class. It keeps the component loaded while it lives or is locked.
class ClassFactory final : public IClassFactory {
public:
    /// A new factory with no reference yet.
    static ClassFactory* make(CreateFunction create) { return new ClassFactory(create); }

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override;
    STDMETHODIMP_(ULONG) Release() override;
    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** object) override;
    STDMETHODIMP LockServer(WINBOOL lock) override;

private:
    explicit ClassFactory(CreateFunction create) noexcept : m_create(create) {}
    ~ClassFactory() = default;

    LiveObject m_live;
    CreateFunction m_create;
    LONG volatile m_references = 0;
};

} // namespace quillet

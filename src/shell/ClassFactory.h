// Makes controls and property pages for hosts.
#pragma once

#include "base/Counted.h"
#include "base/CreateFunction.h"

#include <windows.h>

#include <unknwn.h>

namespace quillet {

/// The factory of one class. It keeps the component loaded while it lives or is locked.
class ClassFactory final : public Counted<IClassFactory> {
public:
    explicit ClassFactory(CreateFunction create) noexcept : m_create(create) {}

    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** object) override;
    STDMETHODIMP LockServer(WINBOOL lock) override;

private:
    CreateFunction m_create;
};

} // namespace quillet

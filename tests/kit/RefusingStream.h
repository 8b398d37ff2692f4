// A stream that can nothing but read and write in order.
#pragma once

#include "kit/Counterpart.h"

#include <windows.h>

#include <objidl.h>

namespace quillet::kit {

/// Refuses every call but reading and writing, which are the derived class's.
class RefusingStream : public Counterpart<IStream> {
public:
    STDMETHODIMP Seek(LARGE_INTEGER, DWORD, ULARGE_INTEGER*) override { return E_NOTIMPL; }
    STDMETHODIMP SetSize(ULARGE_INTEGER) override { return E_NOTIMPL; }
    STDMETHODIMP CopyTo(IStream*, ULARGE_INTEGER, ULARGE_INTEGER*, ULARGE_INTEGER*) override
    {
        return E_NOTIMPL;
    }
    STDMETHODIMP Commit(DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP Revert() override { return E_NOTIMPL; }
    STDMETHODIMP LockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP UnlockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP Stat(STATSTG*, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP Clone(IStream**) override { return E_NOTIMPL; }

private:
    void* faceOf(REFIID iid) noexcept override
    {
        return iid == __uuidof(ISequentialStream) ? static_cast<IStream*>(this) : Counterpart::faceOf(iid);
    }
};

} // namespace quillet::kit

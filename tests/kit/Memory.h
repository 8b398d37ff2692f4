// Streams and storages in memory, and a stream that can nothing but read and write in order.
#pragma once

#include "base/ComPtr.h"
#include "kit/Counterpart.h"

#include <windows.h>

#include <objidl.h>

#include <vector>

namespace quillet::kit {

using Bytes = std::vector<BYTE>;

/// A stream that holds the bytes, at its beginning.
ComPtr<IStream> streamOf(Bytes const& bytes = {});

/// Everything that is in the stream, whatever its position; the position does not change.
Bytes bytesOf(IStream& stream);

ULONGLONG positionOf(IStream& stream);

/// A stream that fails: it reads the bytes and then no further, or takes so many and then no more.
ComPtr<IStream> brokenStream(Bytes const& bytes, ULONG bytesTaken);

/// An empty compound file.
ComPtr<IStorage> newStorage();

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

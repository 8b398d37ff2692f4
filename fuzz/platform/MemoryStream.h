// A stream over bytes in memory.
#pragma once

#include "base/Counted.h"

#include <objidl.h>

#include <vector>

namespace quillet::fuzz {

class MemoryStream : public Counted<IStream> {
public:
    explicit MemoryStream(std::vector<BYTE> bytes = {}) : m_bytes(std::move(bytes)) {}

    std::vector<BYTE> const& bytes() const noexcept { return m_bytes; }
    /// Where the next byte is read or written.
    size_t position() const noexcept { return m_position; }

    HRESULT STDMETHODCALLTYPE Read(void* target, ULONG size, ULONG* got) override;
    HRESULT STDMETHODCALLTYPE Write(void const* source, ULONG size, ULONG* written) override;
    HRESULT STDMETHODCALLTYPE Seek(LARGE_INTEGER to, DWORD origin, ULARGE_INTEGER* position) override;
    HRESULT STDMETHODCALLTYPE Stat(STATSTG* status, DWORD flags) override;

    HRESULT STDMETHODCALLTYPE SetSize(ULARGE_INTEGER) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE CopyTo(IStream*, ULARGE_INTEGER, ULARGE_INTEGER*, ULARGE_INTEGER*) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Commit(DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Revert() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE LockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE UnlockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Clone(IStream**) override { return E_NOTIMPL; }

protected:
    IUnknown* inheritedInterface(REFIID iid) noexcept override;

private:
    std::vector<BYTE> m_bytes;
    size_t m_position = 0;
};

/// What an object's bytes begin with when they are damaged.
constexpr BYTE kDamaged = 0xFF;

/// How the objects here load and save themselves. E_FAIL for damaged bytes.
HRESULT loadBytes(IStream& stream, std::vector<BYTE>& bytes);
HRESULT saveBytes(IStream& stream, std::vector<BYTE> const& bytes);

} // namespace quillet::fuzz

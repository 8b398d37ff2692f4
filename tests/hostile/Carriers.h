// Bags, streams and storages that do not do what they should.
#pragma once

#include "base/Variant.h"
#include "kit/Counterpart.h"
#include "kit/Memory.h"
#include "kit/RefusingStream.h"

#include <ocidl.h>
#include <windows.h>

#include <objidl.h>

#include <functional>

namespace quillet::hostile {

/// A bag that answers each call as it is told.
class HostileBag final : public kit::Counterpart<IPropertyBag> {
public:
    std::function<HRESULT(VARIANT&)> reads; ///< fills what is asked for
    std::function<HRESULT()> writes;
    int calls = 0;

    STDMETHODIMP Read(LPCOLESTR, VARIANT* value, IErrorLog*) override
    {
        ++calls;
        return reads ? reads(*value) : E_INVALIDARG;
    }
    STDMETHODIMP Write(LPCOLESTR, VARIANT*) override
    {
        ++calls;
        return writes ? writes() : S_OK;
    }
};

/// A stream over bytes that goes wrong at one of its calls, the first being 1.
class HostileStream final : public kit::RefusingStream {
public:
    explicit HostileStream(kit::Bytes bytes = {}) : m_bytes(std::move(bytes)) {}

    ULONG most = 0xFFFFFFFF;    ///< bytes in one call
    int wrongAt = 0;            ///< the call that goes wrong; 0 for none
    HRESULT wrong = E_FAIL;     ///< what it answers
    ULONG claimed = 0;          ///< how many bytes it then says it has read or taken
    std::function<void()> deed; ///< what happens in that call instead of an answer of its own
    int calls = 0;
    kit::Bytes taken;

    STDMETHODIMP Read(void* target, ULONG size, ULONG* read) override;
    STDMETHODIMP Write(void const* source, ULONG size, ULONG* written) override;

private:
    /// Whether this call goes wrong; a deed is done and the call goes on as usual.
    bool goesWrong(ULONG* count);

    kit::Bytes m_bytes;
    size_t m_at = 0;
};

/// A storage that hands out one stream, or nothing.
class HostileStorage final : public kit::Counterpart<IStorage> {
public:
    ComPtr<IStream> stream;
    HRESULT answer = S_OK;
    std::function<void()> deed;

    STDMETHODIMP CreateStream(OLECHAR const*, DWORD, DWORD, DWORD, IStream** out) override
    {
        return handOut(out);
    }
    STDMETHODIMP OpenStream(OLECHAR const*, void*, DWORD, DWORD, IStream** out) override
    {
        return handOut(out);
    }
    STDMETHODIMP CreateStorage(OLECHAR const*, DWORD, DWORD, DWORD, IStorage**) override { return E_NOTIMPL; }
    STDMETHODIMP OpenStorage(OLECHAR const*, IStorage*, DWORD, SNB, DWORD, IStorage**) override
    {
        return E_NOTIMPL;
    }
    STDMETHODIMP CopyTo(DWORD, IID const*, SNB, IStorage*) override { return E_NOTIMPL; }
    STDMETHODIMP MoveElementTo(OLECHAR const*, IStorage*, OLECHAR const*, DWORD) override
    {
        return E_NOTIMPL;
    }
    STDMETHODIMP Commit(DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP Revert() override { return E_NOTIMPL; }
    STDMETHODIMP EnumElements(DWORD, void*, DWORD, IEnumSTATSTG**) override { return E_NOTIMPL; }
    STDMETHODIMP DestroyElement(OLECHAR const*) override { return E_NOTIMPL; }
    STDMETHODIMP RenameElement(OLECHAR const*, OLECHAR const*) override { return E_NOTIMPL; }
    STDMETHODIMP SetElementTimes(OLECHAR const*, FILETIME const*, FILETIME const*, FILETIME const*) override
    {
        return E_NOTIMPL;
    }
    STDMETHODIMP SetClass(REFCLSID) override { return E_NOTIMPL; }
    STDMETHODIMP SetStateBits(DWORD, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP Stat(STATSTG*, DWORD) override { return E_NOTIMPL; }

private:
    HRESULT handOut(IStream** out)
    {
        if (deed)
            deed();
        *out = stream.copy();
        return answer;
    }
};

} // namespace quillet::hostile

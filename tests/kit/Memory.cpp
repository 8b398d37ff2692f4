// Streams and storages in memory.
#include "kit/Memory.h"

#include "base/RunTimeError.h"

#include <ole2.h>

#include <algorithm>

namespace quillet::kit {

namespace {

ULONGLONG seek(IStream& stream, LONGLONG to, DWORD from)
{
    LARGE_INTEGER move;
    move.QuadPart = to;
    ULARGE_INTEGER position{};
    check(stream.Seek(move, from, &position));
    return position.QuadPart;
}

/// Reads and writes in order, as far as it goes.
class BrokenStream final : public RefusingStream {
public:
    BrokenStream(Bytes bytes, ULONG bytesTaken) : m_bytes(std::move(bytes)), m_taken(bytesTaken) {}

    STDMETHODIMP Read(void* target, ULONG size, ULONG* read) override
    {
        if (size > m_bytes.size() - m_at)
            return STG_E_READFAULT;
        std::copy_n(m_bytes.begin() + static_cast<ptrdiff_t>(m_at), size, static_cast<BYTE*>(target));
        m_at += size;
        if (read)
            *read = size;
        return S_OK;
    }
    STDMETHODIMP Write(void const*, ULONG size, ULONG* written) override
    {
        if (size > m_taken)
            return STG_E_MEDIUMFULL;
        m_taken -= size;
        if (written)
            *written = size;
        return S_OK;
    }

private:
    Bytes m_bytes;
    size_t m_at = 0;
    ULONG m_taken;
};

} // namespace

ComPtr<IStream> brokenStream(Bytes const& bytes, ULONG bytesTaken)
{
    return {make<BrokenStream>(bytes, bytesTaken).get()};
}

ComPtr<IStream> streamOf(Bytes const& bytes)
{
    ComPtr<IStream> stream;
    check(::CreateStreamOnHGlobal(nullptr, TRUE, stream.put()));
    check(stream->SetSize({})); // a new memory block may come with a size of its own
    if (!bytes.empty())
        check(stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr));
    seek(*stream.get(), 0, STREAM_SEEK_SET);
    return stream;
}

Bytes bytesOf(IStream& stream)
{
    ULONGLONG const before = positionOf(stream);
    Bytes bytes(static_cast<size_t>(seek(stream, 0, STREAM_SEEK_END)));
    seek(stream, 0, STREAM_SEEK_SET);
    if (!bytes.empty())
        check(stream.Read(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr));
    seek(stream, static_cast<LONGLONG>(before), STREAM_SEEK_SET);
    return bytes;
}

ULONGLONG positionOf(IStream& stream) { return seek(stream, 0, STREAM_SEEK_CUR); }

ComPtr<IStorage> newStorage()
{
    ComPtr<ILockBytes> memory;
    check(::CreateILockBytesOnHGlobal(nullptr, TRUE, memory.put()));
    ComPtr<IStorage> storage;
    check(::StgCreateDocfileOnILockBytes(memory.get(), STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE, 0,
                                         storage.put()));
    return storage;
}

} // namespace quillet::kit

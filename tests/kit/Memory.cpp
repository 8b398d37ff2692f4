// Streams and storages in memory.
#include "kit/Memory.h"

#include "base/RunTimeError.h"

#include <ole2.h>

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

} // namespace

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

// A stream over bytes in memory: reading, writing and moving.
#include "platform/MemoryStream.h"

#include <algorithm>
#include <array>

namespace quillet::fuzz {

IUnknown* MemoryStream::inheritedInterface(REFIID iid) noexcept
{
    return iid == IID_ISequentialStream ? static_cast<IStream*>(this) : nullptr;
}

HRESULT STDMETHODCALLTYPE MemoryStream::Read(void* target, ULONG size, ULONG* got)
{
    auto const count = static_cast<ULONG>(std::min<size_t>(size, m_bytes.size() - m_position));
    std::copy_n(m_bytes.data() + m_position, count, static_cast<BYTE*>(target));
    m_position += count;
    if (got)
        *got = count;
    return count == size ? S_OK : S_FALSE;
}

HRESULT STDMETHODCALLTYPE MemoryStream::Write(void const* source, ULONG size, ULONG* written)
{
    m_bytes.resize(std::max<size_t>(m_bytes.size(), m_position + size));
    std::copy_n(static_cast<BYTE const*>(source), size, m_bytes.data() + m_position);
    m_position += size;
    if (written)
        *written = size;
    return S_OK;
}

HRESULT STDMETHODCALLTYPE MemoryStream::Seek(LARGE_INTEGER to, DWORD origin, ULARGE_INTEGER*)
{
    if (origin != STREAM_SEEK_SET || to.QuadPart != 0) // nobody asks for another place
        return E_NOTIMPL;
    m_position = 0;
    return S_OK;
}

HRESULT STDMETHODCALLTYPE MemoryStream::Stat(STATSTG* status, DWORD)
{
    *status = {};
    status->cbSize.QuadPart = m_bytes.size();
    return S_OK;
}

HRESULT loadBytes(IStream& stream, std::vector<BYTE>& bytes)
{
    bytes.clear();
    std::array<BYTE, 61> piece; // no power of two, so that the last piece is mostly a part
    for (ULONG got = 1; got > 0;) {
        HRESULT const result = stream.Read(piece.data(), static_cast<ULONG>(piece.size()), &got);
        if (FAILED(result))
            return result;
        bytes.insert(bytes.end(), piece.begin(), piece.begin() + got);
    }
    return !bytes.empty() && bytes.front() == kDamaged ? E_FAIL : S_OK;
}

HRESULT saveBytes(IStream& stream, std::vector<BYTE> const& bytes)
{
    return stream.Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr);
}

} // namespace quillet::fuzz

HRESULT WINAPI CreateStreamOnHGlobal(HGLOBAL, BOOL, IStream** stream)
{
    *stream = new quillet::fuzz::MemoryStream();
    return S_OK;
}

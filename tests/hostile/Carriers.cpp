// Bags, streams and storages that do not do what they should.
#include "Carriers.h"

#include <algorithm>

namespace quillet::hostile {

bool HostileStream::goesWrong(ULONG* count)
{
    if (++calls != wrongAt)
        return false;
    if (deed) {
        deed();
        return false;
    }
    if (count)
        *count = claimed;
    return true;
}

STDMETHODIMP HostileStream::Read(void* target, ULONG size, ULONG* read)
{
    if (goesWrong(read))
        return wrong;
    size_t const given = std::min<size_t>({size, most, m_bytes.size() - m_at});
    std::copy_n(m_bytes.begin() + static_cast<ptrdiff_t>(m_at), given, static_cast<BYTE*>(target));
    m_at += given;
    if (read)
        *read = static_cast<ULONG>(given);
    return given == size ? S_OK : S_FALSE;
}

STDMETHODIMP HostileStream::Write(void const* source, ULONG size, ULONG* written)
{
    if (goesWrong(written))
        return wrong;
    ULONG const given = std::min(size, most);
    auto const* const first = static_cast<BYTE const*>(source);
    taken.insert(taken.end(), first, first + given);
    if (written)
        *written = given;
    return S_OK;
}

} // namespace quillet::hostile

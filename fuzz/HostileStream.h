// A stream that gives what it has in its own way.
#pragma once

#include "Hold.h"
#include "platform/MemoryStream.h"

#include <algorithm>
#include <cstdint>

namespace quillet::fuzz {

/// How a stream answers, beside giving what it was asked for.
struct Manner {
    ULONG piece = 0;               ///< it gives no more at once; 0 for all
    std::uint64_t failsAt = ~0ull; ///< it fails as soon as it has given that much
    bool exaggerates = false;      ///< it says more than it was asked for
};

class HostileStream final : public MemoryStream {
public:
    HostileStream(std::vector<BYTE> bytes, Manner manner, std::uint64_t mayRead)
        : MemoryStream(std::move(bytes)), m_manner(manner), m_mayRead(mayRead)
    {}

    HRESULT STDMETHODCALLTYPE Read(void* target, ULONG size, ULONG* got) override
    {
        hold(position() + size <= m_mayRead, "nothing outside the form is asked for");
        if (position() >= m_manner.failsAt)
            return failed(STG_E_READFAULT);
        ULONG const most = m_manner.piece ? std::min(size, m_manner.piece) : size;
        HRESULT const result = MemoryStream::Read(target, most, got);
        if (!m_manner.exaggerates)
            return result;
        *got = size + 1;
        return failed(result);
    }
    /// Whether it gave an answer that no reader may go on from.
    bool hasFailed() const noexcept { return m_hasFailed; }

private:
    HRESULT failed(HRESULT result) noexcept
    {
        m_hasFailed = true;
        return result;
    }

    Manner m_manner;
    std::uint64_t m_mayRead;
    bool m_hasFailed = false;
};

} // namespace quillet::fuzz

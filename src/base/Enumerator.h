// COM enumerators over a snapshot of values.
#pragma once

#include "base/ComCall.h"
#include "base/Counted.h"
#include "base/RunTimeError.h"
#include "base/Variant.h"

#include <ocidl.h>
#include <windows.h>

#include <objidl.h>

#include <utility>
#include <vector>

namespace quillet {

/// How values of an enumerator are kept and handed out.
template <class Value> struct Handed {
    using Kept = Value;
    static void give(Kept const& kept, Value& out) { out = kept; }
};
template <class Interface> struct Handed<Interface*> {
    using Kept = ComPtr<Interface>;
    static void give(Kept const& kept, Interface*& out) { out = kept.copy(); }
};
template <> struct Handed<CONNECTDATA> {
    using Kept = std::pair<ComPtr<IUnknown>, DWORD>;
    static void give(Kept const& kept, CONNECTDATA& out) { out = {kept.first.copy(), kept.second}; }
};
template <> struct Handed<VARIANT> {
    using Kept = Variant;
    static void give(Kept const& kept, VARIANT& out) { out = Variant(kept).detach(); }
};

/// A counted enumerator over a snapshot of values, which begins at one of them.
template <class Interface, class Value> class Enumerator final : public Counted<Interface> {
public:
    using Kept = typename Handed<Value>::Kept;

    explicit Enumerator(std::vector<Kept> values, size_t at = 0) : m_values(std::move(values)), m_at(at) {}

    STDMETHODIMP Next(ULONG count, Value* values, ULONG* fetched) override
    {
        return comCall([&] {
            if (!values || (count != 1 && !fetched))
                throw RunTimeError(E_POINTER);
            ULONG given = 0;
            for (; given < count && m_at < m_values.size(); ++given)
                Handed<Value>::give(m_values[m_at++], values[given]);
            if (fetched)
                *fetched = given;
            return given == count ? S_OK : S_FALSE;
        });
    }
    STDMETHODIMP Skip(ULONG count) override
    {
        size_t const left = m_values.size() - m_at;
        m_at += count < left ? count : left;
        return count <= left ? S_OK : S_FALSE;
    }
    STDMETHODIMP Reset() override
    {
        m_at = 0;
        return S_OK;
    }
    STDMETHODIMP Clone(Interface** clone) override
    {
        return comCall([&] {
            deref(clone) = nullptr;
            *clone = makeCounted<Enumerator>(m_values, m_at).detach();
        });
    }

private:
    std::vector<Kept> m_values;
    size_t m_at;
};

} // namespace quillet

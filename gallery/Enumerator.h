// The enumerators of a container's objects: a snapshot that is handed out piece by piece.
#pragma once

#include "base/ComCall.h"
#include "base/ComPtr.h"
#include "base/RunTimeError.h"
#include "base/Variant.h"
#include "gallery/Counted.h"

#include <oaidl.h>
#include <windows.h>

#include <objidl.h>

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace quillet::gallery {

/// An enumerator of the COM kind Face over Owned things, each of which gives a Raw copy away.
template <class Face, class Raw, class Owned, Raw (*copyOf)(Owned const&)>
class Enumerator final : public Counted<Face> {
public:
    explicit Enumerator(std::vector<Owned> items, std::size_t position = 0)
        : m_items(std::move(items)), m_position(position)
    {}

    HRESULT STDMETHODCALLTYPE Next(ULONG wanted, Raw* out, ULONG* fetched) override
    {
        return comCall([&] {
            if (!out || (!fetched && wanted != 1))
                throw RunTimeError(E_POINTER);
            ULONG const count = std::min(wanted, left());
            for (ULONG i = 0; i < count; ++i)
                out[i] = copyOf(m_items[m_position++]);
            if (fetched)
                *fetched = count;
            return count == wanted ? S_OK : S_FALSE;
        });
    }

    HRESULT STDMETHODCALLTYPE Skip(ULONG wanted) override
    {
        ULONG const count = std::min(wanted, left());
        m_position += count;
        return count == wanted ? S_OK : S_FALSE;
    }

    HRESULT STDMETHODCALLTYPE Reset() override
    {
        m_position = 0;
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE Clone(Face** out) override
    {
        return comCall([&] { deref(out) = new Enumerator(m_items, m_position); });
    }

private:
    ULONG left() const noexcept { return static_cast<ULONG>(m_items.size() - m_position); }

    std::vector<Owned> m_items;
    std::size_t m_position;
};

inline IUnknown* copyOfObject(ComPtr<IUnknown> const& object) { return object.copy(); }
inline VARIANT copyOfVariant(Variant const& value) { return Variant(value).detach(); }

using ObjectEnumerator = Enumerator<IEnumUnknown, IUnknown*, ComPtr<IUnknown>, &copyOfObject>;
using VariantEnumerator = Enumerator<IEnumVARIANT, VARIANT, Variant, &copyOfVariant>;

} // namespace quillet::gallery

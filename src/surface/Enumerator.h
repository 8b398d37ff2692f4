// COM enumerators over a snapshot of values.
#pragma once

#include "base/ComCall.h"
#include "base/ComPtr.h"
#include "base/Module.h"
#include "base/RunTimeError.h"

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
template <> struct Handed<IConnectionPoint*> {
    using Kept = ComPtr<IConnectionPoint>;
    static void give(Kept const& kept, IConnectionPoint*& out) { out = kept.copy(); }
};
template <> struct Handed<CONNECTDATA> {
    using Kept = std::pair<ComPtr<IUnknown>, DWORD>;
    static void give(Kept const& kept, CONNECTDATA& out) { out = {kept.first.copy(), kept.second}; }
};

/// An enumerator of its own life over a snapshot of values.
template <class Interface, class Value> class Enumerator final : public Interface {
public:
    using Kept = typename Handed<Value>::Kept;

    /// A new enumerator at a place in the values.
    static ComPtr<Interface> make(std::vector<Kept> values, size_t at = 0)
    {
        return ComPtr<Interface>::adopt(new Enumerator(std::move(values), at));
    }

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override
    {
        if (!object)
            return E_POINTER;
        *object = nullptr;
        if (iid != IID_IUnknown && iid != __uuidof(Interface))
            return E_NOINTERFACE;
        *object = ComPtr<Interface>(this).detach();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override
    {
        return static_cast<ULONG>(::InterlockedIncrement(&m_references));
    }
    STDMETHODIMP_(ULONG) Release() override
    {
        LONG const left = ::InterlockedDecrement(&m_references);
        if (left == 0)
            delete this;
        return static_cast<ULONG>(left);
    }

    STDMETHODIMP Next(ULONG count, Value* values, ULONG* fetched) override
    {
        if (!values || (count != 1 && !fetched))
            return E_POINTER;
        ULONG given = 0;
        for (; given < count && m_at < m_values.size(); ++given)
            Handed<Value>::give(m_values[m_at++], values[given]);
        if (fetched)
            *fetched = given;
        return given == count ? S_OK : S_FALSE;
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
            *clone = make(m_values, m_at).detach();
        });
    }

private:
    Enumerator(std::vector<Kept> values, size_t at) : m_values(std::move(values)), m_at(at) {}
    ~Enumerator() = default;

    LiveObject m_live;
    LONG volatile m_references = 1;
    std::vector<Kept> m_values;
    size_t m_at;
};

} // namespace quillet

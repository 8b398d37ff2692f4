// The base of every counterpart: a counted object whose interfaces a test can hide.
#pragma once

#include "base/ComPtr.h"
#include "base/Module.h"

#include <windows.h>

#include <unknwn.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace quillet::kit {

/// Implements IUnknown for the interfaces named. It lives on the heap and counts as alive, so that a
/// reference that somebody keeps too long shows at the end of the test.
template <class First, class... Rest> class Counterpart : public First, public Rest... {
public:
    Counterpart() = default;
    Counterpart(Counterpart const&) = delete;
    Counterpart& operator=(Counterpart const&) = delete;

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override
    {
        if (!object)
            return E_POINTER;
        *object = isHidden(iid) ? nullptr : faceOf(iid);
        if (!*object)
            return E_NOINTERFACE;
        AddRef();
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

    /// From here on the interface is answered with E_NOINTERFACE, or offered again.
    void hide(REFIID iid) { m_hidden.push_back(iid); }
    void show(REFIID iid) { std::erase(m_hidden, iid); }

    IUnknown* unknown() noexcept { return static_cast<First*>(this); }
    ULONG references() const noexcept { return static_cast<ULONG>(m_references); }

protected:
    virtual ~Counterpart() = default;

    /// The interface, uncounted; null when the object has none of that name.
    virtual void* faceOf(REFIID iid) noexcept
    {
        if (iid == IID_IUnknown || iid == __uuidof(First))
            return static_cast<First*>(this);
        void* found = nullptr;
        ((iid == __uuidof(Rest) ? static_cast<void>(found = static_cast<Rest*>(this)) : void()), ...);
        return found;
    }

private:
    bool isHidden(REFIID iid) const { return std::ranges::find(m_hidden, iid) != m_hidden.end(); }

    LiveObject m_live;
    LONG volatile m_references = 1;
    std::vector<IID> m_hidden;
};

/// A new counterpart, owned.
template <class T, class... Arguments> ComPtr<T> make(Arguments&&... arguments)
{
    return ComPtr<T>::adopt(new T(std::forward<Arguments>(arguments)...));
}

} // namespace quillet::kit

// A COM object of its own: its reference count, and the interfaces that it answers.
#pragma once

#include "base/ComPtr.h"
#include "base/Module.h"

#include <windows.h>

#include <unknwn.h>

#include <tuple>
#include <utility>

namespace quillet {

/// Implements IUnknown for the interfaces named; the first one is the object's identity. It begins with one
/// reference, which makeCounted hands out, and counts as alive: whoever holds it keeps its code loaded.
template <class... Interfaces> class Counted : public Interfaces... {
public:
    using Identity = std::tuple_element_t<0, std::tuple<Interfaces...>>;

    Counted(Counted const&) = delete;
    Counted& operator=(Counted const&) = delete;

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override
    {
        if (!object)
            return E_POINTER;
        IUnknown* const found = interfaceOf(iid);
        *object = found;
        if (!found)
            return E_NOINTERFACE;
        found->AddRef();
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

protected:
    Counted() = default;
    virtual ~Counted() = default;

    /// For interfaces that a named one inherits: the same pointer by its ancestor's name, uncounted.
    virtual IUnknown* inheritedInterface(REFIID) noexcept { return nullptr; }

private:
    IUnknown* interfaceOf(REFIID iid) noexcept
    {
        IUnknown* found = nullptr;
        if (iid == __uuidof(IUnknown))
            found = static_cast<Identity*>(this);
        else
            static_cast<void>(
                ((iid == __uuidof(Interfaces) ? (found = static_cast<Interfaces*>(this), true) : false) ||
                 ...));
        return found ? found : inheritedInterface(iid);
    }

    LiveObject m_live;
    LONG volatile m_references = 1;
};

/// Makes a counted object and hands out its first reference.
template <class Object, class... Arguments> ComPtr<Object> makeCounted(Arguments&&... arguments)
{
    return ComPtr<Object>::adopt(new Object(std::forward<Arguments>(arguments)...));
}

} // namespace quillet

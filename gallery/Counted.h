// The identity of the host's own COM objects: counting and the interfaces they answer.
#pragma once

#include "base/ComPtr.h"

#include <windows.h>

#include <unknwn.h>

#include <tuple>
#include <utility>

namespace quillet::gallery {

/// A COM object of the host with the given interfaces; the first one is its identity. It begins with one
/// reference, which makeCounted hands out.
template <class... Faces> class Counted : public Faces... {
public:
    using Identity = std::tuple_element_t<0, std::tuple<Faces...>>;

    Counted(Counted const&) = delete;
    Counted& operator=(Counted const&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override
    {
        if (!out)
            return E_POINTER;
        *out = nullptr;
        if (IUnknown* const found = face(iid)) {
            found->AddRef();
            *out = found;
            return S_OK;
        }
        return forwarded(iid, out);
    }

    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_references; }

    ULONG STDMETHODCALLTYPE Release() override
    {
        ULONG const left = --m_references;
        if (left == 0)
            delete this;
        return left;
    }

protected:
    Counted() = default;
    virtual ~Counted() = default;

    /// For interfaces that a listed one inherits: the same pointer by its ancestor's name.
    virtual IUnknown* inheritedFace(REFIID) noexcept { return nullptr; }
    /// For interfaces that somebody else answers.
    virtual HRESULT forwarded(REFIID, void**) { return E_NOINTERFACE; }

private:
    IUnknown* face(REFIID iid) noexcept
    {
        IUnknown* found = nullptr;
        if (iid == __uuidof(IUnknown))
            found = static_cast<Identity*>(this);
        else
            static_cast<void>(
                ((iid == __uuidof(Faces) ? (found = static_cast<Faces*>(this), true) : false) || ...));
        return found ? found : inheritedFace(iid);
    }

    ULONG m_references = 1;
};

/// Makes a counted object and hands out its first reference.
template <class T, class... Arguments> ComPtr<T> makeCounted(Arguments&&... arguments)
{
    return ComPtr<T>::adopt(new T(std::forward<Arguments>(arguments)...));
}

} // namespace quillet::gallery

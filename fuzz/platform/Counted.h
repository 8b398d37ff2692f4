// Counting of references, for the objects that stand in for the system's.
#pragma once

#include <windows.h>

#include <unknwn.h>

namespace quillet::fuzz {

/// One interface with its count; the object ends with its last reference. A query answers by identifier
/// alone: whoever asks for a font or a picture here only keeps it and lets go of it.
template <class Face> class Counted : public Face {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override
    {
        bool const known = iid == IID_IUnknown || answers(iid);
        *out = known ? static_cast<Face*>(this) : nullptr;
        if (!known)
            return E_NOINTERFACE;
        this->AddRef();
        return S_OK;
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
    virtual bool answers(REFIID iid) const noexcept = 0;

private:
    ULONG m_references = 1;
};

} // namespace quillet::fuzz

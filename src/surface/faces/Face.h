// A COM face of a surface: one theme's interfaces, with the identity and the life of the surface.
#pragma once

#include <windows.h>

#include <unknwn.h>

namespace quillet {

class Surface;

/// The outer object of a surface: the surface's own identity, or its aggregator's.
IUnknown* outerOf(Surface const& surface) noexcept;
/// Asks the outer object for an interface; the surface itself for the one that no aggregator knows.
HRESULT queryFace(Surface& surface, REFIID iid, void** object) noexcept;

/// Implements IUnknown for one or several interfaces of a surface by handing it on to the outer object.
template <class... Interfaces> class Face : public Interfaces... {
public:
    explicit Face(Surface& surface) noexcept : m_surface(surface) {}
    Face(Face const&) = delete;
    Face& operator=(Face const&) = delete;

    STDMETHODIMP QueryInterface(REFIID iid, void** object) final { return queryFace(m_surface, iid, object); }
    STDMETHODIMP_(ULONG) AddRef() final { return outerOf(m_surface)->AddRef(); }
    STDMETHODIMP_(ULONG) Release() final { return outerOf(m_surface)->Release(); }

protected:
    ~Face() = default;
    Surface& m_surface;
};

} // namespace quillet

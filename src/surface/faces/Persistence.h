// IPersistStreamInit, IPersistStorage, IPersistPropertyBag: one set of values, three carriers.
#pragma once

#include "base/RunTimeError.h"
#include "surface/faces/Face.h"

#include <ocidl.h>
#include <windows.h>

#include <optional>

namespace quillet {

class SavedValues;

class Persistence final : public Face<IPersistStreamInit, IPersistStorage, IPersistPropertyBag> {
public:
    using Face::Face;

    // IPersist
    STDMETHODIMP GetClassID(CLSID* classId) override;
    // IPersistStreamInit and IPersistStorage
    STDMETHODIMP IsDirty() override;
    // IPersistStreamInit
    STDMETHODIMP Load(IStream* stream) override;
    STDMETHODIMP Save(IStream* stream, WINBOOL clearDirty) override;
    STDMETHODIMP GetSizeMax(ULARGE_INTEGER* size) override;
    // IPersistStreamInit and IPersistPropertyBag
    STDMETHODIMP InitNew() override;
    // IPersistStorage
    STDMETHODIMP InitNew(IStorage* storage) override;
    STDMETHODIMP Load(IStorage* storage) override;
    STDMETHODIMP Save(IStorage* storage, WINBOOL sameAsLoad) override;
    STDMETHODIMP SaveCompleted(IStorage* storage) override;
    STDMETHODIMP HandsOffStorage() override;
    // IPersistPropertyBag
    STDMETHODIMP Load(IPropertyBag* bag, IErrorLog* log) override;
    STDMETHODIMP Save(IPropertyBag* bag, WINBOOL clearDirty, WINBOOL saveAll) override;

    bool isDirty() const noexcept { return m_dirty; }
    void setDirty() noexcept { m_dirty = true; }

private:
    SavedValues savedValues();
    HRESULT load(IStream& stream);
    HRESULT save(IStream& stream);
    /// The answer of a load or a save that left an object out: S_FALSE, with error info.
    HRESULT tell(std::optional<ErrorNumber> loss);

    bool m_dirty = false;
};

} // namespace quillet

// What stands in for the system's font and picture objects.
#pragma once

#include "platform/Counted.h"

#include <objidl.h>

#include <vector>

namespace quillet::fuzz {

/// A font or a picture that keeps the bytes it was loaded from and writes them again.
class PlainObject final : public Counted<IPersistStream> {
public:
    enum class Kind { Font, Picture, Other };
    /// What an object's bytes begin with when they are damaged.
    static constexpr BYTE kDamaged = 0xFF;

    explicit PlainObject(Kind kind) noexcept : m_kind(kind) { ++s_living; }

    Kind kind() const noexcept { return m_kind; }
    std::vector<BYTE> const& bytes() const noexcept { return m_bytes; }
    /// How many there are. None may be left when a form is done with.
    static int living() noexcept { return s_living; }

    HRESULT STDMETHODCALLTYPE Load(IStream* stream) override;
    HRESULT STDMETHODCALLTYPE Save(IStream* stream, BOOL clearDirty) override;
    HRESULT STDMETHODCALLTYPE GetClassID(CLSID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE IsDirty() override { return S_FALSE; }
    HRESULT STDMETHODCALLTYPE GetSizeMax(ULARGE_INTEGER*) override { return E_NOTIMPL; }

private:
    ~PlainObject() override { --s_living; }
    bool answers(REFIID iid) const noexcept override;

    static int s_living;
    Kind m_kind;
    std::vector<BYTE> m_bytes;
};

} // namespace quillet::fuzz

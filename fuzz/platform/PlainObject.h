// What stands in for the system's picture objects, and for objects that are of no use.
#pragma once

#include "platform/MemoryStream.h"

#include <vector>

namespace quillet::fuzz {

/// A picture that keeps the bytes it was loaded from and writes them again; or an object that is nothing.
class PlainObject final : public Counted<IPersistStream> {
public:
    enum class Kind { Picture, Other };

    explicit PlainObject(Kind kind) noexcept : m_kind(kind) { ++s_living; }

    std::vector<BYTE> const& bytes() const noexcept { return m_bytes; }
    static int living() noexcept { return s_living; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override;
    HRESULT STDMETHODCALLTYPE Load(IStream* stream) override { return loadBytes(*stream, m_bytes); }
    HRESULT STDMETHODCALLTYPE Save(IStream* stream, BOOL) override { return saveBytes(*stream, m_bytes); }
    HRESULT STDMETHODCALLTYPE GetClassID(CLSID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE IsDirty() override { return S_FALSE; }
    HRESULT STDMETHODCALLTYPE GetSizeMax(ULARGE_INTEGER*) override { return E_NOTIMPL; }

private:
    ~PlainObject() override { --s_living; }
    /// By identifier alone: whoever asks for a picture here only keeps it and lets go of it.
    IUnknown* inheritedInterface(REFIID iid) noexcept override;

    static int s_living;
    Kind m_kind;
    std::vector<BYTE> m_bytes;
};

} // namespace quillet::fuzz

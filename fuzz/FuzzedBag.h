// A container's property bag that answers whatever the input says.
#pragma once

#include "Input.h"
#include "base/Counted.h"
#include "base/Variant.h"

#include <ocidl.h>

namespace quillet::fuzz {

/// Answers with any result, and with a value of any type. A failure leaves anything in the caller's variant;
/// what a success leaves there is a value, as the caller frees it.
class FuzzedBag final : public Counted<IPropertyBag> {
public:
    explicit FuzzedBag(Input& input) noexcept : m_input(input) {}

    HRESULT STDMETHODCALLTYPE Read(LPCOLESTR name, VARIANT* value, IErrorLog* log) override;
    HRESULT STDMETHODCALLTYPE Write(LPCOLESTR, VARIANT*) override { return E_NOTIMPL; }

    /// Whether the last value that was asked for was refused, and never given.
    bool hasRefused() const noexcept { return m_hasRefused; }

private:
    void fill(VARIANT& value);
    void fillReference(VARIANT& value);

    Input& m_input;
    bool m_hasRefused = false;
    Variant m_referred; ///< what a value by reference refers to; the bag's own
};

} // namespace quillet::fuzz

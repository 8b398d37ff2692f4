// A control that does nothing but hold one number: the least that a member of an object can cost.
#pragma once

#include "bench/Container.h"

namespace quillet::bench {

/// The property as a vtable has it.
class Number {
public:
    virtual HRESULT STDMETHODCALLTYPE get(LONG* value) = 0;
    virtual HRESULT STDMETHODCALLTYPE put(LONG value) = 0;

protected:
    ~Number() = default;
};

/// The property "Number", through the vtable and by name.
class MinimalControl final : public LateBound, public Number {
public:
    HRESULT STDMETHODCALLTYPE get(LONG* value) override;
    HRESULT STDMETHODCALLTYPE put(LONG value) override;

    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD kind, DISPPARAMS* arguments, VARIANT* result,
                        EXCEPINFO*, UINT*) override;

private:
    LONG m_value = 0;
};

} // namespace quillet::bench

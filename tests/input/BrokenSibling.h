// A flat command button of somebody else's making, whose Refresh answers what a test wants.
#pragma once

#include "kit/Counterpart.h"
#include "typelib/Interfaces.h"

namespace quillet::input {

/// Counts how often it was asked to refresh. Everything else is refused.
class BrokenSibling final : public kit::Counterpart<_qvFlatCommand> {
public:
    explicit BrokenSibling(HRESULT answer) : m_answer(answer) {}

    int refreshed = 0;

    STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override
    {
        return E_NOTIMPL;
    }

#define QV_VALUE(name, id, type, help)                                                                       \
    STDMETHODIMP get_##name(type*) override { return E_NOTIMPL; }                                            \
    STDMETHODIMP put_##name(type) override { return E_NOTIMPL; }
#define QV_OBJECT(name, id, type, help)                                                                      \
    STDMETHODIMP get_##name(type**) override { return E_NOTIMPL; }                                           \
    STDMETHODIMP putref_##name(type*) override { return E_NOTIMPL; }
#define QV_READ_ONLY(name, id, type, help)                                                                   \
    STDMETHODIMP get_##name(type*) override { return E_NOTIMPL; }
#define QV_METHOD(name, id, help)                                                                            \
    STDMETHODIMP name() override { return called(id); }
#define QV_WINDOW_PROCEDURE(name, id, help)                                                                  \
    STDMETHODIMP name(LONG, LONG, LONG, LONG, LONG*) override { return E_NOTIMPL; }
#include "typelib/members/qvFlatCommand.inc"

private:
    HRESULT called(DISPID method);

    HRESULT m_answer;
};

} // namespace quillet::input

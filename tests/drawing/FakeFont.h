// A font object that notes what it is asked and fails when it is told to.
#pragma once

#include "kit/Counterpart.h"

#include <ocidl.h>
#include <windows.h>

#include <string>
#include <utility>

namespace quillet {

/// Gives out one borrowed handle. Whatever a surface has no reason to ask fails the test.
class FakeFont final : public kit::Counterpart<IFont> {
public:
    FakeFont(kit::SharedRecord record, std::string name, HFONT handle)
        : m_record(std::move(record)), m_name(std::move(name)), m_handle(handle)
    {}

    STDMETHODIMP_(ULONG) AddRef() override;
    STDMETHODIMP_(ULONG) Release() override;
    STDMETHODIMP get_hFont(HFONT* handle) override;

    STDMETHODIMP get_Name(BSTR*) override { return unexpected(); }
    STDMETHODIMP put_Name(BSTR) override { return unexpected(); }
    STDMETHODIMP get_Size(CY*) override { return unexpected(); }
    STDMETHODIMP put_Size(CY) override { return unexpected(); }
    STDMETHODIMP get_Bold(BOOL*) override { return unexpected(); }
    STDMETHODIMP put_Bold(BOOL) override { return unexpected(); }
    STDMETHODIMP get_Italic(BOOL*) override { return unexpected(); }
    STDMETHODIMP put_Italic(BOOL) override { return unexpected(); }
    STDMETHODIMP get_Underline(BOOL*) override { return unexpected(); }
    STDMETHODIMP put_Underline(BOOL) override { return unexpected(); }
    STDMETHODIMP get_Strikethrough(BOOL*) override { return unexpected(); }
    STDMETHODIMP put_Strikethrough(BOOL) override { return unexpected(); }
    STDMETHODIMP get_Weight(SHORT*) override { return unexpected(); }
    STDMETHODIMP put_Weight(SHORT) override { return unexpected(); }
    STDMETHODIMP get_Charset(SHORT*) override { return unexpected(); }
    STDMETHODIMP put_Charset(SHORT) override { return unexpected(); }
    STDMETHODIMP Clone(IFont**) override { return unexpected(); }
    STDMETHODIMP IsEqual(IFont*) override { return unexpected(); }
    STDMETHODIMP SetRatio(LONG, LONG) override { return unexpected(); }
    STDMETHODIMP QueryTextMetrics(TEXTMETRICOLE*) override { return unexpected(); }
    STDMETHODIMP AddRefHfont(HFONT) override { return unexpected(); }
    STDMETHODIMP ReleaseHfont(HFONT) override { return unexpected(); }
    STDMETHODIMP SetHdc(HDC) override { return unexpected(); }

private:
    HRESULT unexpected() const;

    kit::SharedRecord m_record;
    std::string m_name;
    HFONT m_handle;
};

} // namespace quillet

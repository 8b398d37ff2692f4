// A font object that notes what it is asked and fails when it is told to.
#pragma once

#include "kit/FontCounterpart.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace quillet {

/// Gives out one borrowed handle. Whatever a surface has no reason to ask fails the test.
class FakeFont final : public kit::FontCounterpart<> {
public:
    FakeFont(kit::SharedRecord record, std::string name, HFONT handle)
        : m_record(std::move(record)), m_name(std::move(name)), m_handle(handle)
    {}

    STDMETHODIMP_(ULONG) AddRef() override
    {
        m_record->note(m_name + ".AddRef");
        return FontCounterpart::AddRef();
    }
    STDMETHODIMP_(ULONG) Release() override
    {
        m_record->note(m_name + ".Release");
        return FontCounterpart::Release();
    }
    STDMETHODIMP get_hFont(HFONT* handle) override
    {
        HRESULT result = S_OK;
        if (m_record->asked(m_name + ".get_hFont", result))
            *handle = m_handle;
        return result;
    }

private:
    HRESULT answered() override
    {
        ADD_FAILURE() << m_name << " was asked what a surface has no reason to ask";
        return E_NOTIMPL;
    }

    kit::SharedRecord m_record;
    std::string m_name;
    HFONT m_handle;
};

} // namespace quillet

// A font object that notes what it is asked and fails when it is told to.
#include "drawing/FakeFont.h"

#include <gtest/gtest.h>

namespace quillet {

ULONG FakeFont::AddRef()
{
    m_record->note(m_name + ".AddRef");
    return Counterpart::AddRef();
}

ULONG FakeFont::Release()
{
    m_record->note(m_name + ".Release");
    return Counterpart::Release();
}

HRESULT FakeFont::get_hFont(HFONT* handle)
{
    HRESULT result = S_OK;
    if (m_record->asked(m_name + ".get_hFont", result))
        *handle = m_handle;
    return result;
}

HRESULT FakeFont::unexpected() const
{
    ADD_FAILURE() << m_name << " was asked what a surface has no reason to ask";
    return E_NOTIMPL;
}

} // namespace quillet

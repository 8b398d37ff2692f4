// Errors that hosts see, by their published numbers.
#pragma once

#include "base/Bstr.h"
#include "base/ComPtr.h"
#include "base/RunTimeError.h"

#include <windows.h>

#include <oleauto.h>

#include <string>

namespace quillet {

constexpr HRESULT runTimeError(WORD number) { return MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number); }

inline constexpr HRESULT kOverflow = runTimeError(6);
inline constexpr HRESULT kTypeMismatch = runTimeError(13);
inline constexpr HRESULT kObjectNotSet = runTimeError(91);
inline constexpr HRESULT kInvalidUseOfNull = runTimeError(94);
inline constexpr HRESULT kInvalidPropertyValue = runTimeError(380);
inline constexpr HRESULT kInvalidPicture = runTimeError(481);

/// The HRESULT that body throws; S_OK when it throws nothing.
template <class Body> HRESULT thrownBy(Body&& body)
{
    try {
        body();
        return S_OK;
    } catch (RunTimeError const& error) {
        return error.result();
    }
}

namespace kit {

/// What the last call left behind as the thread's error; empty texts for none. It is taken away.
struct ErrorTexts {
    std::wstring description;
    std::wstring source;
};
inline ErrorTexts takenError()
{
    ComPtr<IErrorInfo> info;
    Bstr description;
    Bstr source;
    if (::GetErrorInfo(0, info.put()) == S_OK) {
        info->GetDescription(description.put());
        info->GetSource(source.put());
    }
    return {std::wstring(description.view()), std::wstring(source.view())};
}

} // namespace kit

} // namespace quillet

// Errors that hosts see, by their published numbers.
#pragma once

#include "base/RunTimeError.h"

#include <windows.h>

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

} // namespace quillet

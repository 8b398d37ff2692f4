// The HRESULT that something throws, for tests to compare.
#pragma once

#include "base/RunTimeError.h"

namespace quillet {

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

constexpr HRESULT runTimeError(WORD number) { return MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number); }

} // namespace quillet

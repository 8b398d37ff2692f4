// The HRESULT that something throws, for tests to compare.
#pragma once

#include "base/RunTimeError.h"
#include "kit/Errors.h"

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

} // namespace quillet

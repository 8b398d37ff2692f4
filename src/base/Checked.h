// Arithmetic that raises run-time error 6 "Overflow" instead of wrapping round.
#pragma once

#include "base/RunTimeError.h"

#include <cstdint>
#include <utility>

namespace quillet {

/// value in the narrower integer type, or Overflow when it does not fit.
template <class To, class From> constexpr To narrowed(From value)
{
    if (!std::in_range<To>(value))
        throw RunTimeError(ErrorNumber::Overflow);
    return static_cast<To>(value);
}

constexpr long checkedAdd(long a, long b) { return narrowed<long>(std::int64_t{a} + b); }
constexpr long checkedSubtract(long a, long b) { return narrowed<long>(std::int64_t{a} - b); }
constexpr long checkedMultiply(long a, long b) { return narrowed<long>(std::int64_t{a} * b); }

/// The nearest integer, halves to the even neighbour; Overflow outside 32 bits, and for what is no number.
long roundedToEven(double value);

} // namespace quillet

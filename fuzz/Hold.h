// What has to hold whatever the input is.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace quillet::fuzz {

/// Ends the program with the sentence that did not hold; the fuzzer keeps the input.
inline void hold(bool holds, char const* sentence) noexcept
{
    if (holds)
        return;
    std::fprintf(stderr, "This does not hold: %s\n", sentence);
    std::abort();
}

} // namespace quillet::fuzz

// What rounds leave behind is noticed, and nothing else.
#include "Usage.h"

#include <windows.h>

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <cstdlib>

namespace quillet::kit {
namespace {

constexpr int kRounds = 300;

TEST(Usage, ofRoundsThatKeepNothingIsFlat)
{
    expectNothingIsLeft(kRounds, [](int round) { std::free(std::malloc(16 + round)); });
}

TEST(Usage, noticesTheSmallestBlockKeptInEachRound)
{
    EXPECT_NONFATAL_FAILURE(
        expectNothingIsLeft(kRounds, [](int) { EXPECT_NE(::HeapAlloc(::GetProcessHeap(), 0, 16), nullptr); }),
        "bytes in use before");
    EXPECT_NONFATAL_FAILURE(expectNothingIsLeft(kRounds, [](int) { EXPECT_NE(std::malloc(16), nullptr); }),
                            "bytes in use before");
}

TEST(Usage, noticesABrushKeptInEachRound)
{
    EXPECT_NONFATAL_FAILURE(
        expectNothingIsLeft(kRounds, [](int round) { EXPECT_NE(::CreateSolidBrush(round), nullptr); }),
        "gdi");
}

} // namespace
} // namespace quillet::kit

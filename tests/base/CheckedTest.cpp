// Checked arithmetic and rounding.
#include "base/Checked.h"

#include "kit/Errors.h"

#include <gtest/gtest.h>

#include <limits>

namespace quillet {
namespace {

constexpr long kMax = 2147483647;
constexpr long kMin = -2147483647 - 1;

TEST(Checked, sumsAndDifferencesInsideTheRangeComeBackExactly)
{
    EXPECT_EQ(checkedAdd(kMax, kMin), -1);
    EXPECT_EQ(checkedAdd(kMax - 1, 1), kMax);
    EXPECT_EQ(checkedSubtract(kMin + 1, 1), kMin);
    EXPECT_EQ(checkedMultiply(46341, 46340), 2147441940);
}

TEST(Checked, leavingTheSigned32BitRangeRaisesOverflow)
{
    EXPECT_EQ(thrownBy([] { checkedAdd(kMax, 1); }), kOverflow);
    EXPECT_EQ(thrownBy([] { checkedSubtract(kMin, 1); }), kOverflow);
    EXPECT_EQ(thrownBy([] { checkedMultiply(46341, 46341); }), kOverflow);
}

TEST(Checked, narrowingTo16BitsAcceptsTheEndsAndRefusesBeyond)
{
    EXPECT_EQ(narrowed<short>(32767L), 32767);
    EXPECT_EQ(narrowed<short>(-32768L), -32768);
    EXPECT_EQ(thrownBy([] { narrowed<short>(32768L); }), kOverflow);
    EXPECT_EQ(thrownBy([] { narrowed<short>(-32769L); }), kOverflow);
}

TEST(Checked, narrowingAnUnsignedValueComparesItsWorthAndNotItsBits)
{
    EXPECT_EQ(narrowed<short>(size_t{1}), 1);
    EXPECT_EQ(thrownBy([] { narrowed<short>(size_t{32768}); }), kOverflow);
    EXPECT_EQ(thrownBy([] { narrowed<long>(4294967295U); }), kOverflow);
}

TEST(Checked, halvesRoundToTheEvenNeighbour)
{
    EXPECT_EQ(roundedToEven(127.5), 128);
    EXPECT_EQ(roundedToEven(150.5), 150);
    EXPECT_EQ(roundedToEven(-0.5), 0);
    EXPECT_EQ(roundedToEven(-1.5), -2);
    EXPECT_EQ(roundedToEven(-2.5), -2);
    EXPECT_EQ(roundedToEven(2.4999), 2);
    EXPECT_EQ(roundedToEven(-2.5001), -3);
}

TEST(Checked, roundingWhatIsNoNumberOrTooLargeRaisesOverflow)
{
    EXPECT_EQ(thrownBy([] { roundedToEven(2147483648.0); }), kOverflow);
    EXPECT_EQ(thrownBy([] { roundedToEven(-2147483649.0); }), kOverflow);
    EXPECT_EQ(thrownBy([] { roundedToEven(std::numeric_limits<double>::quiet_NaN()); }), kOverflow);
    EXPECT_EQ(roundedToEven(2147483647.0), kMax);
}

} // namespace
} // namespace quillet

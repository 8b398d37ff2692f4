// The built type library equals its reference, which was written by hand from the published contract.
#include "BuiltLibrary.h"
#include "LibraryDump.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quillet {
namespace {

TEST(TypeLibrary, equalsItsReferenceLineByLine)
{
    std::vector<std::string> const expected = referenceLines();
    std::vector<std::string> const actual = describe(*builtLibrary().get());
    ASSERT_GT(expected.size(), 600u);
    std::size_t differences = 0;
    for (std::size_t i = 0; i < std::min(expected.size(), actual.size()) && differences < 20; ++i) {
        EXPECT_EQ(actual[i], expected[i]) << "in line " << i + 1;
        differences += actual[i] != expected[i];
    }
    EXPECT_EQ(actual.size(), expected.size());
}

} // namespace
} // namespace quillet

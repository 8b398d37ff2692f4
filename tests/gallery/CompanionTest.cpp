// The binary file beside a form: its records, whole and damaged.
#include "gallery/form/Companion.h"

#include "gallery/form/FormValue.h"

#include <gtest/gtest.h>

namespace quillet::gallery {
namespace {

using namespace std::string_literals;

TEST(Companion, holdsRecordsBehindTheirLengths)
{
    Companion companion;
    EXPECT_EQ(companion.add("one"), 0U);
    EXPECT_EQ(companion.add(""), 7U);
    EXPECT_EQ(companion.add("three"), 11U);
    EXPECT_EQ(companion.bytes(), "\3\0\0\0one\0\0\0\0\5\0\0\0three"s);
    EXPECT_EQ(companion.record(0), "one");
    EXPECT_EQ(companion.record(7), "");
    EXPECT_EQ(companion.record(11), "three");
}

TEST(Companion, hasNothingOutsideItsBytes)
{
    Companion const companion("\3\0\0\0one"s);
    for (unsigned long const offset : {4UL, 7UL, 8UL, 0x7FFFFFFFUL, 0xFFFFFFFFUL})
        EXPECT_THROW(companion.record(offset), ValueFault) << offset;
    EXPECT_THROW(Companion().record(0), ValueFault);
}

TEST(Companion, refusesARecordThatEndsTooEarly)
{
    EXPECT_THROW(Companion("\4\0\0\0one"s).record(0), ValueFault);
    EXPECT_THROW(Companion("\xFF\xFF\xFF\xFFone"s).record(0), ValueFault);
}

TEST(Companions, ofAFileThatIsNotThereHaveNoRecords)
{
    Companions companions(L"C:\\no such folder");
    EXPECT_THROW(companions.record({L"gone.frx", 0, false}), ValueFault);
}

} // namespace
} // namespace quillet::gallery

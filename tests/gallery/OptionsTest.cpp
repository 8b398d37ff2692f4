// The command line of the gallery.
#include "gallery/Options.h"

#include <gtest/gtest.h>

namespace quillet::gallery {
namespace {

TEST(Options, aFormAloneRuns)
{
    auto const options = parseOptions({L"a.frm"});
    ASSERT_TRUE(options);
    EXPECT_EQ(options->form, L"a.frm");
    EXPECT_FALSE(options->design);
    EXPECT_FALSE(options->announceReady);
}

TEST(Options, switchesMayStandBeforeAndBehindTheForm)
{
    auto const options = parseOptions({L"--design", L"a.frm", L"--screenshot-ready=r.txt"});
    ASSERT_TRUE(options);
    EXPECT_TRUE(options->design);
    EXPECT_TRUE(options->announceReady);
    EXPECT_EQ(options->readyFile, L"r.txt");
    auto const plain = parseOptions({L"--screenshot-ready", L"a.frm"});
    ASSERT_TRUE(plain);
    EXPECT_TRUE(plain->announceReady);
    EXPECT_EQ(plain->readyFile, L"");
}

TEST(Options, whatMakesNoSenseIsRefused)
{
    EXPECT_FALSE(parseOptions({}));
    EXPECT_FALSE(parseOptions({L"--design"}));
    EXPECT_FALSE(parseOptions({L"a.frm", L"b.frm"}));
    EXPECT_FALSE(parseOptions({L"--frog", L"a.frm"}));
    EXPECT_FALSE(parseOptions({L"--screenshot-ready=", L"a.frm"}));
    EXPECT_FALSE(parseOptions({L"--screenshot-readyness", L"a.frm"}));
}

} // namespace
} // namespace quillet::gallery

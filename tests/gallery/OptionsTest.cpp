// The command line of the gallery.
#include "gallery/app/Options.h"

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

void expectLogAndForm(std::optional<Options> const& options, bool design)
{
    ASSERT_TRUE(options);
    EXPECT_EQ(options->logFile, L"e.txt");
    EXPECT_EQ(options->form, L"a.frm");
    EXPECT_EQ(options->design, design);
}

TEST(Options, theLogsFileIsTheNextWordOrStandsBehindAnEqualsSign)
{
    expectLogAndForm(parseOptions({L"--log", L"e.txt", L"a.frm"}), false);
    expectLogAndForm(parseOptions({L"a.frm", L"--log", L"e.txt"}), false);
    expectLogAndForm(parseOptions({L"--log=e.txt", L"a.frm"}), false);
    expectLogAndForm(parseOptions({L"--design", L"--log", L"e.txt", L"a.frm"}), true);
    auto const without = parseOptions({L"a.frm"});
    ASSERT_TRUE(without);
    EXPECT_TRUE(without->logFile.empty());
}

TEST(Options, theFolderToSaveToIsTheNextWordOrStandsBehindAnEqualsSign)
{
    for (auto const& words : std::vector<std::vector<std::wstring>>{
             {L"--save", L"b", L"a.frm"}, {L"a.frm", L"--save", L"b"}, {L"--save=b", L"a.frm"}}) {
        auto const options = parseOptions(words);
        ASSERT_TRUE(options);
        EXPECT_EQ(options->saveFolder, L"b");
        EXPECT_EQ(options->form, L"a.frm");
    }
    EXPECT_FALSE(parseOptions({L"a.frm", L"--save"}));
    EXPECT_FALSE(parseOptions({L"--save", L"a.frm"})) << "the only word is the folder, so there is no form";
    EXPECT_FALSE(parseOptions({L"--save=", L"a.frm"}));
}

TEST(Options, aLogWithoutAFileIsRefused)
{
    EXPECT_FALSE(parseOptions({L"a.frm", L"--log"}));
    EXPECT_FALSE(parseOptions({L"a.frm", L"--log="}));
    EXPECT_FALSE(parseOptions({L"--log", L"--design", L"a.frm"}));
    EXPECT_FALSE(parseOptions({L"--log", std::wstring(), L"a.frm"}));
    EXPECT_FALSE(parseOptions({L"--log", L"a.frm"})) << "the only word is the log, and that is a form";
    EXPECT_FALSE(parseOptions({L"--logs", L"e.txt"}));
}

TEST(Options, aFormAsTheLogIsRefusedRatherThanWrittenOver)
{
    EXPECT_FALSE(parseOptions({L"--log", L"a.frm", L"b.frm"}));
    EXPECT_FALSE(parseOptions({L"--log=A.FRM", L"b.frm"}));
    EXPECT_TRUE(parseOptions({L"--log", L"frm", L"b.frm"}));
}

TEST(Options, withoutAFormTheGallerysOwnIsMeant)
{
    for (auto const& words :
         std::vector<std::vector<std::wstring>>{{}, {L"--design"}, {L"--log", L"e.txt"}}) {
        auto const options = parseOptions(words);
        ASSERT_TRUE(options);
        EXPECT_EQ(options->form, L"");
    }
}

TEST(Options, helpNeedsNoForm)
{
    auto const options = parseOptions({L"--help"});
    ASSERT_TRUE(options);
    EXPECT_TRUE(options->help);
    EXPECT_FALSE(parseOptions({L"a.frm"})->help);
}

TEST(Options, whatMakesNoSenseIsRefused)
{
    EXPECT_FALSE(parseOptions({L"a.frm", L"b.frm"}));
    EXPECT_FALSE(parseOptions({L"--frog", L"a.frm"}));
    EXPECT_FALSE(parseOptions({L"--screenshot-ready=", L"a.frm"}));
    EXPECT_FALSE(parseOptions({L"--screenshot-readyness", L"a.frm"}));
}

} // namespace
} // namespace quillet::gallery

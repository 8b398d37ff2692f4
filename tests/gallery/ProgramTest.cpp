// The gallery as a program: its command line, and what it has among its resources.
#include "gallery/app/Options.h"
#include "gallery/app/ResourceIds.h"

#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace quillet::gallery {
namespace {

using ::testing::HasSubstr;

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

wchar_t const* const kManifest =
    MAKEINTRESOURCEW(24); // the system's own names follow the ANSI functions here
wchar_t const* const kGroupIcon = MAKEINTRESOURCEW(14);
wchar_t const* const kVersion = MAKEINTRESOURCEW(16);

std::string resource(wchar_t const* kind)
{
    HRSRC const found = ::FindResourceW(nullptr, MAKEINTRESOURCEW(1), kind);
    HGLOBAL const loaded = found ? ::LoadResource(nullptr, found) : nullptr;
    if (!loaded)
        return "it is not there";
    return {static_cast<char const*>(::LockResource(loaded)), ::SizeofResource(nullptr, found)};
}

TEST(Resources, theManifestAsksForNewCommonControlsAndEachMonitorsResolution)
{
    std::string const manifest = resource(kManifest);
    EXPECT_THAT(manifest, HasSubstr("name=\"Microsoft.Windows.Common-Controls\" version=\"6.0.0.0\""));
    EXPECT_THAT(manifest, HasSubstr(">true/pm</dpiAware>"));
    EXPECT_THAT(manifest, HasSubstr(">PerMonitorV2, PerMonitor</dpiAwareness>"));
    EXPECT_THAT(manifest, HasSubstr("level=\"asInvoker\""));
}

TEST(Resources, theManifestIsOneThatTheSystemTakes)
{
    ACTCTXW description{};
    description.cbSize = sizeof description;
    description.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
    description.hModule = ::GetModuleHandleW(nullptr);
    description.lpResourceName = MAKEINTRESOURCEW(1);
    HANDLE const context = ::CreateActCtxW(&description);
    EXPECT_NE(context, INVALID_HANDLE_VALUE);
    if (context != INVALID_HANDLE_VALUE)
        ::ReleaseActCtx(context);
}

TEST(Resources, theIconHasASizeForEachPlace)
{
    std::string const group = resource(kGroupIcon);
    std::string sides;
    for (std::size_t entry = 6; entry + 14 <= group.size(); entry += 14)
        sides += std::to_string(static_cast<unsigned char>(group[entry])) + " ";
    EXPECT_EQ(sides, "16 24 32 48 64 ");
}

/// One text of the version's table.
std::wstring versionText(wchar_t const* name)
{
    std::string version = resource(kVersion);
    void* text = nullptr;
    UINT length = 0;
    std::wstring const path = std::wstring(L"\\StringFileInfo\\040904B0\\") + name;
    if (!::VerQueryValueW(version.data(), path.c_str(), &text, &length))
        return L"it is not there";
    return static_cast<wchar_t const*>(text);
}

TEST(Resources, theVersionIsTheComponents)
{
    EXPECT_EQ(versionText(L"OriginalFilename"), L"gallery.exe");
    EXPECT_EQ(versionText(L"ProductName"), L"Quillet");
    wchar_t path[MAX_PATH];
    ::GetModuleFileNameW(nullptr, path, MAX_PATH);
    std::wstring component(path);
    component = component.substr(0, component.find_last_of(L'\\')) + L"\\quilbt.ocx";
    DWORD ignored = 0;
    std::string bytes(::GetFileVersionInfoSizeW(component.c_str(), &ignored), '\0');
    ASSERT_TRUE(::GetFileVersionInfoW(component.c_str(), 0, static_cast<DWORD>(bytes.size()), bytes.data()));
    void* text = nullptr;
    UINT length = 0;
    ASSERT_TRUE(::VerQueryValueW(bytes.data(), L"\\StringFileInfo\\040904B0\\FileVersion", &text, &length));
    EXPECT_EQ(versionText(L"FileVersion"), static_cast<wchar_t const*>(text));
}

} // namespace
} // namespace quillet::gallery

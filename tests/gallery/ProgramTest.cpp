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

using Words = std::vector<std::wstring>;

/// Of words that make sense.
Options parsed(Words const& words)
{
    auto const options = parseOptions(words);
    EXPECT_TRUE(options);
    return options.value_or(Options());
}

void expectRefused(std::vector<Words> const& lines)
{
    for (Words const& words : lines)
        EXPECT_FALSE(parseOptions(words)) << testing::PrintToString(words);
}

TEST(Options, aFormAloneRuns)
{
    Options const options = parsed({L"a.frm"});
    EXPECT_EQ(options.form, L"a.frm");
    EXPECT_FALSE(options.design);
    EXPECT_FALSE(options.announceReady);
}

TEST(Options, switchesMayStandBeforeAndBehindTheForm)
{
    Options const options = parsed({L"--design", L"a.frm", L"--screenshot-ready=r.txt"});
    EXPECT_TRUE(options.design);
    EXPECT_TRUE(options.announceReady);
    EXPECT_EQ(options.readyFile, L"r.txt");
    Options const plain = parsed({L"--screenshot-ready", L"a.frm"});
    EXPECT_TRUE(plain.announceReady);
    EXPECT_EQ(plain.readyFile, L"");
}

TEST(Options, theLogsFileIsTheNextWordOrStandsBehindAnEqualsSign)
{
    for (Words const& words : {Words{L"--log", L"e.txt", L"a.frm"},
                               {L"a.frm", L"--log", L"e.txt"},
                               {L"--log=e.txt", L"a.frm"},
                               {L"--design", L"--log", L"e.txt", L"a.frm"}}) {
        Options const options = parsed(words);
        EXPECT_EQ(options.logFile, L"e.txt");
        EXPECT_EQ(options.form, L"a.frm");
        EXPECT_EQ(options.design, words.front() == L"--design");
    }
    EXPECT_TRUE(parsed({L"a.frm"}).logFile.empty());
}

TEST(Options, theFolderToSaveToIsTheNextWordOrStandsBehindAnEqualsSign)
{
    for (Words const& words :
         {Words{L"--save", L"b", L"a.frm"}, {L"a.frm", L"--save", L"b"}, {L"--save=b", L"a.frm"}}) {
        Options const options = parsed(words);
        EXPECT_EQ(options.saveFolder, L"b");
        EXPECT_EQ(options.form, L"a.frm");
    }
    // The only word is the folder, so there is no form.
    expectRefused({{L"a.frm", L"--save"}, {L"--save", L"a.frm"}, {L"--save=", L"a.frm"}});
}

TEST(Options, aLogWithoutAFileIsRefused)
{
    expectRefused({{L"a.frm", L"--log"},
                   {L"a.frm", L"--log="},
                   {L"--log", L"--design", L"a.frm"},
                   {L"--log", L"", L"a.frm"},
                   {L"--log", L"a.frm"}, // the only word is the log, and that is a form
                   {L"--logs", L"e.txt"}});
}

TEST(Options, aFormAsTheLogIsRefusedRatherThanWrittenOver)
{
    expectRefused({{L"--log", L"a.frm", L"b.frm"}, {L"--log=A.FRM", L"b.frm"}});
    EXPECT_TRUE(parseOptions({L"--log", L"frm", L"b.frm"}));
}

TEST(Options, withoutAFormTheGallerysOwnIsMeant)
{
    for (Words const& words : {Words{}, {L"--design"}, {L"--log", L"e.txt"}})
        EXPECT_EQ(parsed(words).form, L"");
}

TEST(Options, helpNeedsNoForm)
{
    EXPECT_TRUE(parsed({L"--help"}).help);
    EXPECT_FALSE(parsed({L"a.frm"}).help);
}

TEST(Options, whatMakesNoSenseIsRefused)
{
    expectRefused({{L"a.frm", L"b.frm"},
                   {L"--frog", L"a.frm"},
                   {L"--screenshot-ready=", L"a.frm"},
                   {L"--screenshot-readyness", L"a.frm"}});
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

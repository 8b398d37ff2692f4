// The component's file as Windows loads it: protections, imports, exports.
#include "kit/Library.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

namespace quillet {
namespace {

constexpr bool kIs64Bit = sizeof(void*) == 8;

class Image : public testing::Test {
protected:
    template <class T> T const* at(DWORD offset) const
    {
        return reinterpret_cast<T const*>(reinterpret_cast<BYTE const*>(library.module()) + offset);
    }

    IMAGE_NT_HEADERS const& headers() const
    {
        return *at<IMAGE_NT_HEADERS>(static_cast<DWORD>(at<IMAGE_DOS_HEADER>(0)->e_lfanew));
    }

    DWORD directory(DWORD which) const
    {
        return headers().OptionalHeader.DataDirectory[which].VirtualAddress;
    }

    static std::string file()
    {
        std::ifstream stream(std::filesystem::path(kit::Library::path()), std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    kit::Library const library;
};

TEST_F(Image, mayLieAnywhereInMemoryAndItsDataIsNotExecuted)
{
    ASSERT_TRUE(library.loaded());
    WORD const expected = IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE | IMAGE_DLLCHARACTERISTICS_NX_COMPAT |
                          (kIs64Bit ? 0x20 /* high-entropy addresses */ : 0);
    EXPECT_EQ(headers().OptionalHeader.DllCharacteristics, expected);
    EXPECT_NE(directory(IMAGE_DIRECTORY_ENTRY_BASERELOC), 0u);
}

TEST_F(Image, hasNoSectionBothWritableAndExecutable)
{
    IMAGE_SECTION_HEADER const* section = IMAGE_FIRST_SECTION(&headers());
    constexpr DWORD kBoth = IMAGE_SCN_MEM_WRITE | IMAGE_SCN_MEM_EXECUTE;
    WORD executable = 0;
    for (WORD i = 0; i < headers().FileHeader.NumberOfSections; ++i, ++section) {
        EXPECT_NE(section->Characteristics & kBoth, kBoth)
            << std::string(reinterpret_cast<char const*>(section->Name), 8);
        executable =
            static_cast<WORD>(executable + ((section->Characteristics & IMAGE_SCN_MEM_EXECUTE) ? 1 : 0));
    }
    EXPECT_EQ(executable, 1);
}

TEST_F(Image, hasNoTimeStamp)
{
    EXPECT_EQ(headers().FileHeader.TimeDateStamp, 0u);
    EXPECT_EQ(at<IMAGE_EXPORT_DIRECTORY>(directory(IMAGE_DIRECTORY_ENTRY_EXPORT))->TimeDateStamp, 0u);
}

TEST_F(Image, importsNothingButWhatEveryWindowsHas)
{
    std::set<std::string> const system{"advapi32.dll", "comctl32.dll", "gdi32.dll",   "kernel32.dll",
                                       "msimg32.dll",  "msvcrt.dll",   "ole32.dll",   "oleacc.dll",
                                       "oleaut32.dll", "user32.dll",   "uxtheme.dll", "version.dll"};
    int imports = 0;
    for (auto const* import = at<IMAGE_IMPORT_DESCRIPTOR>(directory(IMAGE_DIRECTORY_ENTRY_IMPORT));
         import->Name != 0; ++import, ++imports) {
        std::string name = at<char>(import->Name);
        for (char& letter : name)
            letter = static_cast<char>(::tolower(letter));
        EXPECT_TRUE(system.contains(name)) << name;
    }
    EXPECT_GT(imports, 4);
}

TEST_F(Image, exportsTheFiveEntryPointsWithoutDecoration)
{
    auto const* const exports = at<IMAGE_EXPORT_DIRECTORY>(directory(IMAGE_DIRECTORY_ENTRY_EXPORT));
    auto const* const names = at<DWORD>(exports->AddressOfNames);
    std::set<std::string> found;
    for (DWORD i = 0; i < exports->NumberOfNames; ++i)
        found.insert(at<char>(names[i]));
    EXPECT_EQ(found, (std::set<std::string>{"DllCanUnloadNow", "DllGetClassObject", "DllInstall",
                                            "DllRegisterServer", "DllUnregisterServer"}));
    EXPECT_EQ(exports->NumberOfFunctions, 5u);
}

TEST_F(Image, isASmallFile)
{
#ifdef NDEBUG
    EXPECT_GT(file().size(), 100'000u);
    EXPECT_LE(file().size(), 400'000u);
#else
    GTEST_SKIP() << "of a release";
#endif
}

/// A host may have one that is not ours.
TEST_F(Image, asksForNoLibraryOfTheCompilers) { EXPECT_EQ(file().find("libgcc"), std::string::npos); }

} // namespace
} // namespace quillet

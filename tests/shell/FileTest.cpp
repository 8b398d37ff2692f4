// The component's file: as Windows loads it, what it carries, and used by its manifest alone.
#include "base/Bstr.h"
#include "base/ComPtr.h"
#include "base/Handles.h"
#include "base/RunTimeError.h"
#include "base/Version.h"
#include "kit/Library.h"
#include "pages/PageClass.h"
#include "shell/ClassTable.h"
#include "shell/RegistryRows.h"
#include "typelib/Guids.h"

#include <ocidl.h>
#include <ole2.h>
#include <windows.h>

#include <gtest/gtest.h>
#include <oleauto.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

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
#ifndef __clang__ // whose linker leaves a row for an ordinal 0
    EXPECT_EQ(exports->NumberOfFunctions, 5u);
#endif
}

TEST_F(Image, isASmallFile)
{
#if defined NDEBUG && !defined __clang__
    EXPECT_GT(file().size(), 100'000u);
    EXPECT_LE(file().size(), 400'000u);
#else
    GTEST_SKIP() << "of what is shipped: gcc's release";
#endif
}

/// A host may have one that is not ours.
TEST_F(Image, asksForNoLibraryOfTheCompilers) { EXPECT_EQ(file().find("libgcc"), std::string::npos); }

class VersionResource : public testing::Test {
protected:
    VersionResource()
    {
        std::wstring const path = kit::Library::path();
        DWORD ignored = 0;
        m_data.resize(::GetFileVersionInfoSizeW(path.c_str(), &ignored));
        if (!::GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(m_data.size()), m_data.data()))
            m_data.clear();
    }

    /// Null when there is no such string.
    wchar_t const* text(std::wstring const& name) const
    {
        void* found = nullptr;
        UINT length = 0;
        if (m_data.empty() ||
            !::VerQueryValueW(m_data.data(), (L"\\StringFileInfo\\040904B0\\" + name).c_str(), &found,
                              &length))
            return nullptr;
        return static_cast<wchar_t const*>(found);
    }

    VS_FIXEDFILEINFO const* numbers() const
    {
        void* found = nullptr;
        UINT length = 0;
        bool const has = !m_data.empty() && ::VerQueryValueW(m_data.data(), L"\\", &found, &length);
        return has ? static_cast<VS_FIXEDFILEINFO const*>(found) : nullptr;
    }

private:
    std::vector<BYTE> m_data;
};

TEST_F(VersionResource, saysTheVersionInTextAndInNumbers)
{
    EXPECT_STREQ(text(L"FileVersion"), L"" QV_VERSION);
    EXPECT_STREQ(text(L"ProductVersion"), L"" QV_VERSION);
    ASSERT_NE(numbers(), nullptr);
    unsigned major = 0, minor = 0, build = 0;
    ASSERT_EQ(std::sscanf(QV_VERSION, "%u.%u.%u", &major, &minor, &build), 3);
    EXPECT_EQ(numbers()->dwFileVersionMS, major << 16 | minor);
    EXPECT_EQ(numbers()->dwFileVersionLS, build);
    EXPECT_EQ(numbers()->dwProductVersionMS, major << 16 | minor);
    EXPECT_EQ(numbers()->dwProductVersionLS, build);
    EXPECT_EQ(numbers()->dwFileType, static_cast<DWORD>(VFT_DLL));
}

TEST_F(VersionResource, saysThatTheComponentRegistersItself) { EXPECT_NE(text(L"OLESelfRegister"), nullptr); }

TEST_F(VersionResource, namesTheProduct)
{
    EXPECT_STREQ(text(L"ProductName"), L"Quillet");
    EXPECT_STREQ(text(L"FileDescription"), L"Quillet flat buttons");
    EXPECT_STREQ(text(L"OriginalFilename"), L"quilbt.ocx");
    EXPECT_NE(text(L"LegalCopyright"), nullptr);
}

ComPtr<ITypeLib> typeLibrary()
{
    ComPtr<ITypeLib> library;
    check(::LoadTypeLibEx(kit::Library::path().c_str(), REGKIND_NONE, library.put()));
    return library;
}

TEST(TypeLibraryResource, isTheFirstOfItsKind)
{
    auto const library = typeLibrary();
    Bstr name;
    ASSERT_EQ(library->GetDocumentation(-1, name.put(), nullptr, nullptr, nullptr), S_OK);
    EXPECT_STREQ(name.get(), L"Quillet");
    EXPECT_EQ(library->GetTypeInfoCount(), 24u);
}

TEST(ClassTable, agreesWithTheTypeLibrary)
{
    auto const library = typeLibrary();
    for (ClassRow const& row : classTable()) {
        ComPtr<ITypeInfo> info;
        ASSERT_EQ(library->GetTypeInfoOfGuid(row.controlClass.classId, info.put()), S_OK);
        Bstr name;
        Bstr help;
        ASSERT_EQ(info->GetDocumentation(MEMBERID_NIL, name.put(), help.put(), nullptr, nullptr), S_OK);
        EXPECT_STREQ(name.get(), row.controlClass.name);
        EXPECT_STREQ(help.get(), row.description);
        EXPECT_EQ(row.controlClass.progId, L"Quillet." + std::wstring(name.view()));
    }
}

TEST(ToolboxBitmap, ofEveryClassIs16PixelsWideAndHigh)
{
    kit::Library const library;
    for (ClassRow const& row : classTable()) {
        UniqueBitmap const bitmap(static_cast<HBITMAP>(::LoadImageW(
            library.module(), MAKEINTRESOURCEW(row.toolboxBitmap), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
        BITMAP size{};
        ASSERT_NE(::GetObjectW(bitmap.get(), sizeof size, &size), 0) << "no bitmap " << row.toolboxBitmap;
        EXPECT_EQ(size.bmWidth, 16);
        EXPECT_EQ(size.bmHeight, 16);
    }
}

class Manifest : public testing::Test {
protected:
    Manifest()
    {
        std::wstring path = kit::Library::path();
        path = path.substr(0, path.find_last_of(L'.')) + L".manifest";
        ACTCTXW description{};
        description.cbSize = sizeof(description);
        description.lpSource = path.c_str();
        m_context = ::CreateActCtxW(&description);
        EXPECT_NE(m_context, INVALID_HANDLE_VALUE);
        EXPECT_TRUE(::ActivateActCtx(m_context, &m_cookie));
        ::OleInitialize(nullptr);
    }
    ~Manifest() override
    {
        ::CoFreeUnusedLibraries();
        ::OleUninitialize();
        ::DeactivateActCtx(0, m_cookie);
        ::ReleaseActCtx(m_context);
    }

    /// A new object of the class by that interface.
    template <class T> static ComPtr<T> made(CLSID const& classId)
    {
        ComPtr<T> object;
        EXPECT_EQ(::CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, __uuidof(T),
                                     reinterpret_cast<void**>(object.put())),
                  S_OK);
        return object;
    }

private:
    HANDLE m_context;
    ULONG_PTR m_cookie = 0;
};

TEST_F(Manifest, namesEveryClassByBothOfItsNames)
{
    for (ClassRow const& row : classTable())
        for (std::wstring const& name : {currentProgId(row), versionedProgId(row)}) {
            // A name in a manifest stands for an identifier of the context's own, which leads to the class.
            CLSID found{};
            ASSERT_EQ(::CLSIDFromProgID(name.c_str(), &found), S_OK);
            auto const object = made<IPersistStreamInit>(found);
            ASSERT_TRUE(object);
            CLSID own{};
            EXPECT_EQ(object->GetClassID(&own), S_OK);
            EXPECT_EQ(own, row.controlClass.classId);
        }
}

TEST_F(Manifest, makesEveryControlWithItsStatus)
{
    for (ClassRow const& row : classTable()) {
        ControlClass const& known = row.controlClass;
        ASSERT_TRUE(made<IOleObject>(known.classId));
        DWORD status = 0;
        EXPECT_EQ(::OleRegGetMiscStatus(known.classId, DVASPECT_CONTENT, &status), S_OK);
        EXPECT_EQ(status, known.miscStatus);
    }
}

TEST_F(Manifest, makesEveryPropertyPage)
{
    for (PageClass const* const known : kPageClasses)
        EXPECT_TRUE(made<IPropertyPage>(known->classId));
}

TEST_F(Manifest, leadsToTheTypeLibrary)
{
    Bstr path;
    EXPECT_EQ(::QueryPathOfRegTypeLib(kLibraryId, 1, 0, LOCALE_NEUTRAL, path.put()), S_OK);
    EXPECT_TRUE(path.view().ends_with(L"quilbt.ocx"));
}

} // namespace
} // namespace quillet

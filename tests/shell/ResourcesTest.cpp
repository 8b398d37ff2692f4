// What the component carries as resources: version, type library, toolbox bitmaps.
#include "base/Bstr.h"
#include "base/Handles.h"
#include "base/Version.h"
#include "kit/Library.h"
#include "shell/ClassTable.h"
#include "typelib/Guids.h"

#include <ole2.h>
#include <windows.h>

#include <gtest/gtest.h>
#include <oleauto.h>

#include <cstdio>
#include <vector>

namespace quillet {
namespace {

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

TEST(TypeLibraryResource, isTheFirstOfItsKind)
{
    ComPtr<ITypeLib> library;
    ASSERT_EQ(::LoadTypeLibEx(kit::Library::path().c_str(), REGKIND_NONE, library.put()), S_OK);
    Bstr name;
    ASSERT_EQ(library->GetDocumentation(-1, name.put(), nullptr, nullptr, nullptr), S_OK);
    EXPECT_STREQ(name.get(), L"Quillet");
    EXPECT_EQ(library->GetTypeInfoCount(), 24u);
}

TEST(ClassTable, agreesWithTheTypeLibrary)
{
    ComPtr<ITypeLib> library;
    ASSERT_EQ(::LoadTypeLibEx(kit::Library::path().c_str(), REGKIND_NONE, library.put()), S_OK);
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

} // namespace
} // namespace quillet

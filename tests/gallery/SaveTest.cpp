// Saving a form: what nothing changed stays byte for byte, what changed is written, what is broken is told.
#include "gallery/Demo.h"
#include "gallery/app/Document.h"
#include "gallery/form/FileBytes.h"
#include "gallery/form/Fonts.h"
#include "gallery/form/Pictures.h"
#include "gallery/host/LateBoundObject.h"

#include <olectl.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillet::gallery::test {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

std::wstring formFile(wchar_t const* name) { return std::wstring(GALLERY_FORMS L"/") + name; }

/// A folder of the test's own, empty at first.
std::wstring const& workFolder()
{
    static std::wstring const folder = [] {
        std::wstring const path = programFolder() + L"\\saved";
        ::CreateDirectoryW(path.c_str(), nullptr);
        return path;
    }();
    return folder;
}

std::string const kHead = "VERSION 5.00\r\n"
                          "Object = \"{B451FB09-0E80-40CF-B3BD-7CC480918F2F}#1.0#0\"; \"quilbt.ocx\"\r\n"
                          "Begin VB.Form frmTest \r\n"
                          "   ClientHeight    =   3000\r\n"
                          "   ClientWidth     =   3000\r\n";
std::string const kButton = "   Begin Quillet.qvImageCommand imgOne \r\n"
                            "      Caption         =   \"&One\"\r\n"
                            "      CheckButton     =   0   'False\r\n"
                            "      Height          =   450\r\n"
                            "      OfficeXPColors  =   -1\r\n"
                            "      Width           =   1500\r\n";
std::string const kTail = "   End\r\n"
                          "End\r\n"
                          "Attribute VB_Name = \"frmTest\"\r\n"
                          "Option Explicit\r\n";

/// A form written to a file, opened as a designer opens it, changed and saved.
class Designed {
public:
    explicit Designed(std::string const& text, std::string const& companion = {})
        : m_path(workFolder() + L"\\test.frm")
    {
        writeFileBytes(m_path, text);
        writeFileBytes(withExtension(m_path, L".frx"), companion);
        m_demo = std::make_unique<Demo>(m_path, UserMode::Design);
    }
    Demo& demo() { return *m_demo; }

    void put(wchar_t const* member, Variant value, WORD kind = DISPATCH_PROPERTYPUT)
    {
        IDispatch& control = *m_demo->control(L"imgOne").automation();
        auto* name = const_cast<wchar_t*>(member);
        DISPID id = DISPID_UNKNOWN;
        ASSERT_EQ(control.GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id), S_OK);
        DISPID assigned = DISPID_PROPERTYPUT;
        DISPPARAMS arguments{value.address(), &assigned, 1, 1};
        ASSERT_EQ(
            control.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, kind, &arguments, nullptr, nullptr, nullptr),
            S_OK);
    }
    Document& saved()
    {
        m_demo->document().takeFrom(m_demo->form());
        return m_demo->document();
    }

private:
    std::wstring m_path;
    std::unique_ptr<Demo> m_demo;
};

ComPtr<IPictureDisp> redPicture(int side)
{
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = info.bmiHeader.biHeight = side;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 24;
    void* bits = nullptr;
    PICTDESC description{};
    description.cbSizeofstruct = sizeof description;
    description.picType = PICTYPE_BITMAP;
    description.bmp.hbitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    ComPtr<IPictureDisp> picture;
    ::OleCreatePictureIndirect(&description, IID_IPictureDisp, TRUE, reinterpret_cast<void**>(picture.put()));
    return picture;
}

class SavedForms : public testing::TestWithParam<wchar_t const*> {};

TEST_P(SavedForms, areTheSameByteForByteWhereNothingChanged)
{
    std::wstring const from = formFile(GetParam());
    std::wstring const to = workFolder() + L"\\" + GetParam();
    Demo demo(from, UserMode::Design);
    EXPECT_THAT(demo.warnings, IsEmpty());
    EXPECT_FALSE(demo.document().takeFrom(demo.form()));
    demo.document().save(workFolder());
    EXPECT_EQ(fileBytes(to), fileBytes(from));
    std::wstring const companion = withExtension(from, L".frx");
    if (::GetFileAttributesW(companion.c_str()) != INVALID_FILE_ATTRIBUTES) {
        EXPECT_EQ(fileBytes(withExtension(to, L".frx")), fileBytes(companion));
    }
}

INSTANTIATE_TEST_SUITE_P(Of, SavedForms,
                         testing::Values(L"buttons.frm", L"gallery.frm", L"looks.frm", L"mail.frm",
                                         L"options.frm", L"sendoptions.frm", L"toolbar.frm"),
                         [](auto const& tested) {
                             std::wstring const name(tested.param);
                             return std::string(name.begin(), name.end() - 4);
                         });

TEST(SavedForm, keepsLinesThatTheControlWouldNotWrite)
{
    std::string const text = kHead + kButton + "      Odd             =   7\r\n" + kTail;
    EXPECT_EQ(Designed(text).saved().text(), text);
}

TEST(SavedForm, hasAChangedValueInItsLineAndANewOneAtTheEnd)
{
    Designed form(kHead + kButton + kTail);
    form.put(L"Caption", Variant::ofString(L"\"Two\""));
    form.put(L"CheckButton", Variant::ofBool(true));
    form.put(L"BorderWidth", Variant::ofShort(3));
    form.put(L"HotBackColor", Variant::ofLong(static_cast<long>(0x80000011)));
    EXPECT_EQ(form.saved().text(), kHead +
                                       "   Begin Quillet.qvImageCommand imgOne \r\n"
                                       "      Caption         =   \"\"\"Two\"\"\"\r\n"
                                       "      CheckButton     =   -1  'True\r\n"
                                       "      Height          =   450\r\n"
                                       "      OfficeXPColors  =   -1\r\n"
                                       "      Width           =   1500\r\n"
                                       "      HotBackColor    =   &H80000011&\r\n"
                                       "      BorderWidth     =   3\r\n" +
                                       kTail);
}

TEST(SavedForm, losesTheLineOfAValueThatBecameTheDefault)
{
    Designed form(kHead + kButton + kTail);
    form.put(L"Caption", Variant::ofString(L""));
    EXPECT_THAT(form.saved().text(), Not(HasSubstr("Caption")));
}

TEST(SavedForm, hasANewPictureInItsCompanion)
{
    Designed form(kHead + kButton + kTail, std::string("\1\0\0\0x", 5));
    auto const picture = redPicture(3);
    form.put(L"Image", Variant::ofDispatch(picture.get()), DISPATCH_PROPERTYPUTREF);
    Document& saved = form.saved();
    EXPECT_THAT(saved.text(), HasSubstr("      Image           =   \"test.frx\":0005\r\n"));
    Companion const& companion = saved.companion();
    EXPECT_EQ(companion.record(0), "x") << "what was there before stays";
    EXPECT_EQ(companion.record(5), bytesOfPicture(picture.get()));
    EXPECT_EQ(companion.bytes().size(), 5 + 4 + companion.record(5).size());
}

TEST(SavedForm, hasAChangedFontAsABlock)
{
    std::string text;
    { // one form at a time: the component is let go with its last control
        Designed form(kHead + kButton + kTail);
        FontFace face;
        face.name = L"Tahoma";
        face.points = 12;
        face.weight = FW_BOLD;
        form.put(L"Font", Variant::ofDispatch(makeFont(face).as<IDispatch>().get()), DISPATCH_PROPERTYPUTREF);
        text = form.saved().text();
    }
    EXPECT_THAT(text, HasSubstr("      BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851}\r\n"));
    EXPECT_THAT(text, HasSubstr("         Size            =   12\r\n"));
    EXPECT_THAT(text, HasSubstr("         Weight          =   700\r\n"));
    EXPECT_EQ(Designed(text).saved().text(), text);
}

TEST(SavedForm, thatLostItsPicturesIsToldOfEachAndOpens)
{
    std::string const text = kHead + kButton + "      Image           =   \"test.frx\":0000\r\n" +
                             "      HotImage        =   \"test.frx\":0100\r\n" + kTail;
    Designed form(text, std::string("\6\0\0\0lt\0\0xx", 10));
    ASSERT_EQ(form.demo().warnings.size(), 2U);
    EXPECT_EQ(form.demo().warnings[0], "test.frm:12: Image cannot be read: it is no picture");
    EXPECT_EQ(form.demo().warnings[1],
              "test.frm:13: HotImage cannot be read: its companion file has nothing there");
    EXPECT_EQ(form.saved().text(), text) << "nothing more is lost";
}

TEST(SavedForm, whosePictureClaimsToBeHugeIsToldOfItAndOpens)
{
    std::string const text = kHead + kButton + "      Image           =   \"test.frx\":0000\r\n" + kTail;
    std::string picture = bytesOfPicture(redPicture(4).get());
    constexpr size_t kHeight = 8 + 14 + 8; // behind mark and length, the file's header, size and width
    ASSERT_EQ(picture[kHeight], 4);
    auto const companion = [&] { return std::string{static_cast<char>(picture.size()), 0, 0, 0} + picture; };
    EXPECT_THAT(Designed(text, companion()).demo().warnings, IsEmpty());
    picture[kHeight + 3] = 0x20;
    EXPECT_THAT(Designed(text, companion()).demo().warnings,
                ::testing::ElementsAre("test.frm:12: Image cannot be read: it is no picture"));
}

TEST(SavedForm, takesALongTextFromItsCompanion)
{
    std::string const text = kHead +
                             "   Begin Quillet.qvImageCommand imgOne \r\n"
                             "      Caption         =   $\"test.frx\":0000\r\n" +
                             kTail;
    Designed form(text, std::string("\5\0\0\0a\r\n\xE4z", 9));
    EXPECT_EQ(form.demo().warnings.size(), 0U);
    EXPECT_EQ(form.saved().text(), text);
}

} // namespace
} // namespace quillet::gallery::test

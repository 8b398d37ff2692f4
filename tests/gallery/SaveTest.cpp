// Editing a form's text and saving it: what nothing changed stays byte for byte, what is broken is told.
#include "base/Counted.h"
#include "gallery/FormKit.h"
#include "gallery/app/Document.h"
#include "gallery/form/ControlBag.h"
#include "gallery/form/FileBytes.h"
#include "gallery/form/Fonts.h"
#include "gallery/form/FormEditor.h"
#include "gallery/form/FormReader.h"
#include "gallery/form/Pictures.h"
#include "kit/ByName.h"
#include "kit/Fonts.h"

namespace quillet::gallery {
namespace {

using ::testing::HasSubstr;
using namespace std::string_literals;

using Bag = ComPtr<PropertyBag>;

std::string const kUtf8Mark = "\xEF\xBB\xBF";

std::string formWith(std::string const& lines)
{
    return "VERSION 5.00\r\nBegin VB.Form F \r\n   Begin Q.Button one \r\n" + lines + "   End\r\nEnd\r\n";
}

/// A form with one control and its companion file, without windows.
class Edited {
public:
    explicit Edited(std::string text, std::string const& companion = {})
        : m_text(std::move(text)), m_tree(readForm(m_text, L"a.frm")), m_companion(companion)
    {
        writeFileBytes(folder() + L"\\a.frx", companion);
    }
    static std::wstring folder()
    {
        wchar_t path[MAX_PATH];
        ::GetTempPathW(MAX_PATH, path);
        return path;
    }

    /// What the control is loaded with.
    Bag bag() const
    {
        Companions companions(folder());
        BagSources sources;
        sources.record = [&](ResourceReference const& reference) { return companions.record(reference); };
        sources.coding = m_tree.coding;
        return controlBag(control(), sources);
    }

    SavedForm saved(PropertyBag const& bag, PropertyBag const* before = nullptr) const
    {
        Companions companions(folder());
        FormEditor editor(m_text, companions, L"a.frx");
        editor.save(bag, before, control());
        return editor.finish();
    }

private:
    FormNode const& control() const { return m_tree.form.children.at(0); }

    std::string m_text;
    FormTree m_tree;
    std::string m_companion;
};

/// What is read of the one property after it was saved.
std::wstring readAgain(SavedForm const& form, wchar_t const* name)
{
    auto const bag = Edited(form.text, form.companion).bag();
    Variant const* const found = bag->find(name);
    return found ? std::wstring(found->toString().view()) : L"nothing";
}

/// Saved without a change, the form is the same.
void expectUnchanged(std::string const& text, std::string const& companion = {})
{
    Edited const form(text, companion);
    SavedForm const saved = form.saved(*form.bag().get());
    EXPECT_EQ(saved.text, text);
    EXPECT_EQ(saved.companion, companion);
}

/// The form after some of the control's values have changed.
SavedForm changed(Edited const& form, std::vector<std::pair<wchar_t const*, wchar_t const*>> const& values)
{
    auto const bag = form.bag();
    for (auto const& [name, text] : values)
        bag->set(name, Variant::ofString(text));
    return form.saved(*bag.get());
}

std::string const kTwice = formWith("      Caption = \"a\"\r\n      Caption = \"b\"\r\n");

TEST(FormEditor, leavesANameThatStandsTwiceAlone) { expectUnchanged(kTwice); }

TEST(FormEditor, changesTheLineThatCountsOfANameThatStandsTwice)
{
    EXPECT_EQ(readAgain(changed(Edited(kTwice), {{L"Caption", L"new"}}), L"Caption"), L"new");
}

TEST(FormEditor, leavesAShortTextInTheCompanion)
{
    expectUnchanged(formWith("      Caption = $\"a.frx\":0000\r\n"), "\2\0\0\0ab"s);
}

TEST(FormEditor, leavesATextInTheCompanionOfAnotherForm)
{
    writeFileBytes(Edited::folder() + L"\\b.frx", "\2\0\0\0ab"s);
    expectUnchanged(formWith("      Caption = $\"b.frx\":0000\r\n"));
}

TEST(FormEditor, leavesATextInTheCompanionThatIsNotWellCoded)
{
    expectUnchanged(kUtf8Mark + formWith("      Caption = $\"a.frx\":0000\r\n"), "\4\0\0\0a\r\n\xFF"s);
}

TEST(FormEditor, savesALongTextInTheCodingOfItsForm)
{
    for (std::string const& mark : {std::string(), kUtf8Mark}) {
        Edited const form(mark + formWith("      Caption = \"x\"\r\n"));
        wchar_t const* const text = L"\x00E4\r\n\x20AC";
        EXPECT_EQ(readAgain(changed(form, {{L"Caption", text}}), L"Caption"), text);
    }
}

TEST(FormEditor, marksAPropertyWhoseNameTheExtenderHasTaken)
{
    Edited const form(formWith("      Tag = \"the form's\"\r\n"));
    SavedForm const saved = changed(form, {{L"Tag", L"the control's"}});
    EXPECT_THAT(saved.text, HasSubstr("Tag = \"the form's\""));
    EXPECT_EQ(readAgain(saved, L"Tag"), L"the control's");
}

TEST(FormEditor, leavesABlockThatIsNoFontWhenAFontOfItsNameGoes)
{
    std::string const other = "      BeginProperty Font {00000000-0000-0000-0000-000000000001}\r\n"
                              "      EndProperty\r\n";
    Edited const form(formWith(other + "      BeginProperty Font\r\n      EndProperty\r\n"));
    auto const before = form.bag();
    EXPECT_EQ(form.saved(*makeCounted<PropertyBag>().get(), before.get()).text, formWith(other));
}

TEST(FormEditor, losesALineThatLeadsNowhereBeforeANewRecordIsTakenForIt)
{
    Edited const form(formWith("      Image = \"a.frx\":0000\r\n")); // the companion file is empty
    SavedForm const saved = changed(form, {{L"Caption", L"two\r\nlines"}, {L"Text", L"a\nb"}});
    EXPECT_EQ(readAgain(saved, L"Image"), L"nothing");
    EXPECT_EQ(readAgain(saved, L"Caption"), L"two\r\nlines");
    EXPECT_EQ(readAgain(saved, L"Text"), L"a\nb");
}

TEST(FormEditor, losesALineThatLeadsToWhereARecordIsAdded)
{
    Edited const form(formWith("      Odd = $\"a.frx\":0000\r\n")); // the companion file is empty
    EXPECT_EQ(readAgain(changed(form, {{L"Caption", L"two\r\nlines"}}), L"Odd"), L"nothing");
}

TEST(FormEditor, leavesAReferenceThatLeadsNowhereWhileNothingIsAdded)
{
    expectUnchanged(formWith("      Image = \"a.frx\":0000\r\n"));
}

} // namespace
} // namespace quillet::gallery

namespace quillet::gallery::test {
namespace {

using ::testing::Not;

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

    void put(wchar_t const* member, Variant const& value)
    {
        EXPECT_EQ(kit::putByName(automation(), member, value).result, S_OK);
    }
    void putObject(wchar_t const* member, IUnknown* object)
    {
        EXPECT_EQ(kit::setByName(automation(), member, object).result, S_OK);
    }
    Document& saved()
    {
        m_demo->document().takeFrom(m_demo->form());
        return m_demo->document();
    }

private:
    IDispatch& automation() { return *m_demo->control(L"imgOne").automation(); }

    std::wstring m_path;
    std::unique_ptr<Demo> m_demo;
};

ComPtr<IPictureDisp> redPicture(int side) { return kit::newBitmapPicture(side, side, RGB(255, 0, 0)); }

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
    form.putObject(L"Image", picture.get());
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
        form.putObject(L"Font", kit::newFont(L"Tahoma", 12, true).get());
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
                ::testing::ElementsAreArray({"test.frm:12: Image cannot be read: it is no picture"}));
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

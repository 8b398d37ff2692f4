// Editing a form's text without a live form: values that are written are there when the form is read again.
#include "gallery/form/FormEditor.h"

#include "base/Counted.h"
#include "gallery/form/ControlBag.h"
#include "gallery/form/FileBytes.h"
#include "gallery/form/Fonts.h"
#include "gallery/form/FormReader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

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

TEST(FormEditor, leavesANameThatStandsTwiceAlone)
{
    Edited const form(formWith("      Caption = \"a\"\r\n      Caption = \"b\"\r\n"));
    EXPECT_EQ(form.saved(*form.bag().get()).text,
              formWith("      Caption = \"a\"\r\n      Caption = \"b\"\r\n"));
}

TEST(FormEditor, changesTheLineThatCountsOfANameThatStandsTwice)
{
    Edited const form(formWith("      Caption = \"a\"\r\n      Caption = \"b\"\r\n"));
    auto const bag = form.bag();
    bag->set(L"Caption", Variant::ofString(L"new"));
    EXPECT_EQ(readAgain(form.saved(*bag.get()), L"Caption"), L"new");
}

TEST(FormEditor, leavesAShortTextInTheCompanion)
{
    std::string const text = formWith("      Caption = $\"a.frx\":0000\r\n");
    Edited const form(text, "\2\0\0\0ab"s);
    EXPECT_EQ(form.saved(*form.bag().get()).text, text);
}

TEST(FormEditor, leavesATextInTheCompanionOfAnotherForm)
{
    std::string const text = formWith("      Caption = $\"b.frx\":0000\r\n");
    Edited const form(text);
    writeFileBytes(Edited::folder() + L"\\b.frx", "\2\0\0\0ab"s);
    SavedForm const saved = form.saved(*form.bag().get());
    EXPECT_EQ(saved.text, text);
    EXPECT_EQ(saved.companion, "");
}

TEST(FormEditor, leavesATextInTheCompanionThatIsNotWellCoded)
{
    std::string const text = kUtf8Mark + formWith("      Caption = $\"a.frx\":0000\r\n");
    Edited const form(text, "\4\0\0\0a\r\n\xFF"s);
    SavedForm const saved = form.saved(*form.bag().get());
    EXPECT_EQ(saved.text, text);
    EXPECT_EQ(saved.companion, "\4\0\0\0a\r\n\xFF"s);
}

TEST(FormEditor, savesALongTextInTheCodingOfItsForm)
{
    for (std::string const& mark : {std::string(), kUtf8Mark}) {
        Edited const form(mark + formWith("      Caption = \"x\"\r\n"));
        auto const bag = form.bag();
        bag->set(L"Caption", Variant::ofString(L"\x00E4\r\n\x20AC"));
        EXPECT_EQ(readAgain(form.saved(*bag.get()), L"Caption"), L"\x00E4\r\n\x20AC");
    }
}

TEST(FormEditor, marksAPropertyWhoseNameTheExtenderHasTaken)
{
    Edited const form(formWith("      Tag = \"the form's\"\r\n"));
    auto const bag = form.bag();
    bag->set(L"Tag", Variant::ofString(L"the control's"));
    SavedForm const saved = form.saved(*bag.get());
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
    auto const bag = form.bag();
    bag->set(L"Caption", Variant::ofString(L"two\r\nlines"));
    bag->set(L"Text", Variant::ofString(L"a\nb"));
    SavedForm const saved = form.saved(*bag.get());
    EXPECT_EQ(readAgain(saved, L"Image"), L"nothing");
    EXPECT_EQ(readAgain(saved, L"Caption"), L"two\r\nlines");
    EXPECT_EQ(readAgain(saved, L"Text"), L"a\nb");
}

TEST(FormEditor, losesALineThatLeadsToWhereARecordIsAdded)
{
    Edited const form(formWith("      Odd = $\"a.frx\":0000\r\n")); // the companion file is empty
    auto const bag = form.bag();
    bag->set(L"Caption", Variant::ofString(L"two\r\nlines"));
    EXPECT_EQ(readAgain(form.saved(*bag.get()), L"Odd"), L"nothing");
}

TEST(FormEditor, leavesAReferenceThatLeadsNowhereWhileNothingIsAdded)
{
    std::string const text = formWith("      Image = \"a.frx\":0000\r\n");
    Edited const form(text);
    EXPECT_EQ(form.saved(*form.bag().get()).text, text);
}

} // namespace
} // namespace quillet::gallery

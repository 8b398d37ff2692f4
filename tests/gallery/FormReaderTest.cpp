// Reading of form files and the binary file beside them: every kind of line, value and record, and every
// error.
#include "gallery/form/FormReader.h"

#include "gallery/app/Document.h"
#include "gallery/form/Companion.h"
#include "gallery/form/FormValue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillet::gallery {
namespace {

using ::testing::HasSubstr;
using namespace std::string_literals;

constexpr char kSample[] = "VERSION 5.00\r\n"
                           "Object = \"{B451FB09-0E80-40CF-B3BD-7CC480918F2F}#1.0#0\"; \"quilbt.ocx\"\r\n"
                           "Begin VB.Form Main \r\n"
                           "   Caption         =   \"A form\"\r\n"
                           "   BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851} \r\n"
                           "      Name            =   \"Tahoma\"\r\n"
                           "      Size            =   8.25\r\n"
                           "   EndProperty\r\n"
                           "   Begin VB.Frame Group \r\n"
                           "      Begin Quillet.qvFlatCommand Save \r\n"
                           "         Default         =   -1  'True\r\n"
                           "      End\r\n"
                           "   End\r\n"
                           "   Begin VB.Label Hint \r\n"
                           "   End\r\n"
                           "End\r\n"
                           "Attribute VB_Name = \"Main\"\r\n"
                           "Attribute VB_Exposed = False\r\n"
                           "\r\n"
                           "Option Explicit\r\n"
                           "Begin = 3 ' code may look like anything\r\n";

FormTree read(std::string_view text) { return readForm(text, L"a.frm"); }

/// The error of a text, as file:line: reason; empty when it can be read.
std::string errorOf(std::string_view text)
{
    try {
        read(text);
        return {};
    } catch (FormError const& error) {
        std::wstring const wide = error.text();
        return std::string(wide.begin(), wide.end());
    }
}

/// The error of a form that holds these lines; they begin in line 3.
std::string errorInside(std::string const& lines)
{
    return errorOf("VERSION 5.00\nBegin VB.Form F\n" + lines + "\nEnd\n");
}

/// A property's value, by way of a whole form.
FormValue valueOf(std::string const& written)
{
    FormTree const tree = read("VERSION 5.00\nBegin VB.Form F\nX = " + written + "\nEnd\n");
    return tree.form.properties.at(0).value;
}

TEST(FormReader, aFormsObjectsNodesBlocksAttributesAndCodeAreAllThere)
{
    FormTree const tree = read(kSample);
    EXPECT_EQ(tree.version, L"5.00");
    ASSERT_EQ(tree.objects.size(), 1u);
    EXPECT_EQ(tree.objects[0].reference, L"{B451FB09-0E80-40CF-B3BD-7CC480918F2F}#1.0#0");
    EXPECT_EQ(tree.objects[0].file, L"quilbt.ocx");
    EXPECT_EQ(tree.form.name, L"Main");
    ASSERT_EQ(tree.form.blocks.size(), 1u);
    EXPECT_EQ(tree.form.blocks[0].name, L"Font");
    EXPECT_EQ(tree.form.blocks[0].classId, L"{0BE35203-8F91-11CE-9DE3-00AA004BB851}");
    EXPECT_EQ(std::get<double>(tree.form.blocks[0].properties.at(1).value), 8.25);
    ASSERT_EQ(tree.form.children.size(), 2u);
    FormNode const& inner = tree.form.children[0].children.at(0);
    EXPECT_EQ(inner.library, L"Quillet");
    EXPECT_EQ(inner.className, L"qvFlatCommand");
    EXPECT_EQ(inner.name, L"Save");
    EXPECT_EQ(inner.line, 10);
    EXPECT_EQ(inner.properties.at(0).line, 11);
    EXPECT_EQ(tree.attributes.size(), 2u);
    EXPECT_EQ(tree.code, L"\r\nOption Explicit\r\nBegin = 3 ' code may look like anything\r\n");
}

TEST(FormReader, theLineEndingDoesNotMatter)
{
    std::string text = kSample;
    std::erase(text, '\r');
    FormTree const tree = read(text);
    EXPECT_EQ(tree.form.children.at(0).children.at(0).line, 10);
    std::string old = text;
    for (char& c : old)
        c = c == '\n' ? '\r' : c;
    EXPECT_EQ(read(old).form.children.at(0).children.at(0).line, 10);
}

TEST(FormReader, numbersComeAsIntegersWhereTheyFitAndAsFloatsElsewhere)
{
    EXPECT_EQ(valueOf("315"), FormValue(315L));
    EXPECT_EQ(valueOf("-1  'True"), FormValue(-1L));
    EXPECT_EQ(valueOf("0   'False"), FormValue(0L));
    EXPECT_EQ(valueOf("1'no blank"), FormValue(1L));
    EXPECT_EQ(valueOf("+7"), FormValue(7L));
    EXPECT_EQ(valueOf("2147483647"), FormValue(2147483647L));
    EXPECT_EQ(valueOf("2147483648"), FormValue(2147483648.0));
    EXPECT_EQ(valueOf("8.25"), FormValue(8.25));
    EXPECT_EQ(valueOf("-.5"), FormValue(-0.5));
    EXPECT_EQ(valueOf("1.5E+3"), FormValue(1500.0));
    EXPECT_EQ(valueOf("12#"), FormValue(12L));
    EXPECT_EQ(valueOf("True"), FormValue(-1L));
    EXPECT_EQ(valueOf("false 'comment"), FormValue(0L));
}

TEST(FormReader, hexadecimalNumbersAre32BitIntegersWithOrWithoutTheClosingMark)
{
    EXPECT_EQ(valueOf("&H8000000F&"), FormValue(-2147483633L));
    EXPECT_EQ(valueOf("&H8000000F"), FormValue(-2147483633L));
    EXPECT_EQ(valueOf("&HFFFFFFFF&"), FormValue(-1L));
    EXPECT_EQ(valueOf("&H00FF8000&  'orange"), FormValue(0xFF8000L));
    EXPECT_EQ(valueOf("&hff"), FormValue(255L));
    EXPECT_EQ(valueOf("&HFFFF"), FormValue(65535L));
}

TEST(FormReader, stringsKeepTheirQuotesAndTheirWindows1252Letters)
{
    EXPECT_EQ(valueOf("\"a \"\"b\"\"\""), FormValue(std::wstring(L"a \"b\"")));
    EXPECT_EQ(valueOf("\"\""), FormValue(std::wstring()));
    EXPECT_EQ(valueOf("\"it's = 'one'\"  'comment"), FormValue(std::wstring(L"it's = 'one'")));
    EXPECT_EQ(valueOf("\"\x80 \xE4 \x93\""), FormValue(std::wstring(L"\u20AC \u00E4 \u201C")));
    EXPECT_EQ(
        read("\xEF\xBB\xBFVERSION 5.00\nBegin VB.Form F\nX = \"\xC3\xA4\"\nEnd").form.properties[0].value,
        FormValue(std::wstring(L"\u00E4")));
}

TEST(FormReader, referencesIntoTheCompanionFileAreKept)
{
    EXPECT_EQ(valueOf("\"buttons.frx\":0000"), FormValue(ResourceReference{L"buttons.frx", 0, false}));
    EXPECT_EQ(valueOf("\"buttons.frx\":1A2F"), FormValue(ResourceReference{L"buttons.frx", 0x1A2F, false}));
    EXPECT_EQ(valueOf("$\"buttons.frx\":0010"), FormValue(ResourceReference{L"buttons.frx", 16, true}));
}

TEST(FormReader, shortcutsAndIdentifiersAreKeptAsTheyStand)
{
    EXPECT_EQ(valueOf("^S"), FormValue(Unquoted{L"^S"}));
    EXPECT_EQ(valueOf("{0BE35203-8F91-11CE-9DE3-00AA004BB851}"),
              FormValue(Unquoted{L"{0BE35203-8F91-11CE-9DE3-00AA004BB851}"}));
}

TEST(FormReader, namesOfPropertiesMayHaveUnderscoresDotsAndIndexes)
{
    FormNode const form = read("VERSION 5.00\nBegin VB.Form F\n_ExtentX = 1\nTab(0).Control(1)=   \"x\"\n"
                               "Object.ToolTipText = \"y\"\nEnd")
                              .form;
    EXPECT_EQ(form.properties.at(0).name, L"_ExtentX");
    EXPECT_EQ(form.properties.at(1).name, L"Tab(0).Control(1)");
    EXPECT_EQ(form.properties.at(2).name, L"Object.ToolTipText");
}

TEST(FormReader, anErrorNamesTheFileTheLineAndTheReason)
{
    EXPECT_EQ(errorInside("X = \"open"), "a.frm:3: the string is not closed");
    EXPECT_EQ(errorInside("\n\nX = 12monkeys"), "a.frm:5: something stands behind the value");
    EXPECT_EQ(errorInside("X ="), "a.frm:3: no value stands behind the equals sign");
    EXPECT_EQ(errorInside("X = 'only a comment"), "a.frm:3: no value stands behind the equals sign");
    EXPECT_EQ(errorInside("X = frog"), "a.frm:3: this is neither a number nor a string");
    EXPECT_EQ(errorInside("X = &H&"), "a.frm:3: a hexadecimal number has one to eight digits");
    EXPECT_EQ(errorInside("X = &H123456789&"), "a.frm:3: a hexadecimal number has one to eight digits");
    EXPECT_EQ(errorInside("X = 1e999"), "a.frm:3: the number is too large");
    EXPECT_EQ(errorInside("X = 1.2.3"), "a.frm:3: this is neither a number nor a string");
    EXPECT_EQ(errorInside("X = \"a.frx\":xyz"), "a.frm:3: a hexadecimal number has one to eight digits");
    EXPECT_EQ(errorInside("frog"), "a.frm:3: this is no property: it has no equals sign");
    EXPECT_EQ(errorInside("two words = 1"), "a.frm:3: this is no name of a property");
    EXPECT_EQ(errorInside("= 1"), "a.frm:3: this is no name of a property");
    EXPECT_EQ(errorInside("Begin Label L\nEnd"), "a.frm:3: Begin is followed by a class, as Library.Class");
    EXPECT_EQ(errorInside("Begin VB. L\nEnd"), "a.frm:3: Begin is followed by a class, as Library.Class");
    EXPECT_EQ(errorInside("Begin VB.Label\nEnd"), "a.frm:3: the object has no name");
    EXPECT_EQ(errorInside("BeginProperty\nEndProperty"), "a.frm:3: BeginProperty is followed by a name");
}

TEST(FormReader, aFileThatEndsTooEarlySaysWhatIsMissing)
{
    EXPECT_EQ(errorOf(""), "a.frm:1: the file ends, but its VERSION line is missing");
    EXPECT_EQ(errorOf("VERSION 5.00\n"), "a.frm:1: the file ends, but its form is missing");
    EXPECT_EQ(errorOf("VERSION 5.00\nBegin VB.Form F\nBegin VB.Label L\nEnd\n"),
              "a.frm:4: the file ends, but an End is missing");
    EXPECT_EQ(errorOf("VERSION 5.00\nBegin VB.Form F\nBeginProperty Font\n"),
              "a.frm:3: the file ends, but an EndProperty is missing");
}

TEST(FormReader, whatIsNoFormIsRefusedAtItsFirstLine)
{
    EXPECT_EQ(errorOf("MZ\x90\n"), "a.frm:1: a form begins with a VERSION line");
    EXPECT_EQ(errorOf("VERSION 5.00\nfrog\n"),
              "a.frm:2: only Object lines stand between VERSION and the form");
    EXPECT_EQ(errorOf("VERSION 5.00\nBegin VB.UserControl U\nEnd\n"),
              "a.frm:2: the outermost object is no VB.Form");
    EXPECT_EQ(errorOf("VERSION 5.00\nObject = {1}\n"), "a.frm:2: a quoted text is missing");
    EXPECT_EQ(errorOf("VERSION 5.00\nObject\n"), "a.frm:2: an Object line has an equals sign");
    EXPECT_EQ(errorOf("VERSION 5.00\nObject = \"{1}\" \"x\"\n"),
              "a.frm:2: a semicolon and the file's name are missing");
}

TEST(FormReader, nestingIsBoundedInsteadOfUsingUpTheStack)
{
    std::string deep;
    for (int i = 0; i < 100'000; ++i)
        deep += "Begin VB.Frame F\n";
    EXPECT_THAT(errorInside(deep), HasSubstr("objects are nested too deeply"));
    std::string blocks;
    for (int i = 0; i < 100'000; ++i)
        blocks += "BeginProperty P\n";
    EXPECT_THAT(errorInside(blocks), HasSubstr("properties are nested too deeply"));
}

TEST(FormReader, aLineOfAMillionLettersIsOneValue)
{
    std::string const letters(1'000'000, 'x');
    EXPECT_EQ(std::get<std::wstring>(valueOf("\"" + letters + "\"")).size(), letters.size());
    EXPECT_EQ(errorInside(letters), "a.frm:3: this is no property: it has no equals sign");
}

TEST(FormReader, aFileThatCannotBeReadIsAnErrorWithoutALine)
{
    try {
        Document(L"no-such-file.frm");
        FAIL() << "a missing file was read";
    } catch (FormError const& error) {
        EXPECT_EQ(error.text(), L"no-such-file.frm: the file cannot be opened");
    }
}

/// Numbers without a clock, so that a failure comes again.
class Dice {
public:
    unsigned next(unsigned below) noexcept
    {
        m_state = m_state * 1664525u + 1013904223u;
        return (m_state >> 8) % below;
    }

private:
    unsigned m_state = 20240601;
};

std::string mutated(std::string text, Dice& dice)
{
    for (unsigned count = 1 + dice.next(4); count > 0 && !text.empty(); --count) {
        std::size_t const at = dice.next(static_cast<unsigned>(text.size()));
        switch (dice.next(5)) {
        case 0:
            text[at] = static_cast<char>(dice.next(256));
            break;
        case 1:
            text.erase(at, 1 + dice.next(40));
            break;
        case 2:
            text.insert(at, text.substr(dice.next(static_cast<unsigned>(text.size())), dice.next(60)));
            break;
        case 3:
            text.insert(at, 1, "\"'={}&H\n\r\0.:^"[dice.next(13)]);
            break;
        default:
            text.resize(at + 1);
            break;
        }
    }
    return text;
}

TEST(FormReader, everyOfTwentyThousandDamagedFormsIsReadOrRefusedWithALineOfItsOwn)
{
    Dice dice;
    int readable = 0;
    int refused = 0;
    for (int i = 0; i < 20'000; ++i) {
        std::string const text = mutated(kSample, dice);
        try {
            read(text);
            ++readable;
        } catch (FormError const& error) {
            auto const lines =
                1 + std::count_if(text.begin(), text.end(), [](char c) { return c == '\n' || c == '\r'; });
            ASSERT_GE(error.line, 1);
            ASSERT_LE(error.line, lines);
            ASSERT_FALSE(error.reason.empty());
            ++refused;
        }
    }
    EXPECT_GT(readable, 1000);
    EXPECT_GT(refused, 1000);
}

TEST(Companion, holdsRecordsBehindTheirLengths)
{
    Companion companion;
    EXPECT_EQ(companion.add("one"), 0U);
    EXPECT_EQ(companion.add(""), 7U);
    EXPECT_EQ(companion.add("three"), 11U);
    EXPECT_EQ(companion.bytes(), "\3\0\0\0one\0\0\0\0\5\0\0\0three"s);
    EXPECT_EQ(companion.record(0), "one");
    EXPECT_EQ(companion.record(7), "");
    EXPECT_EQ(companion.record(11), "three");
}

TEST(Companion, hasNothingOutsideItsBytes)
{
    Companion const companion("\3\0\0\0one"s);
    for (unsigned long const offset : {4UL, 7UL, 8UL, 0x7FFFFFFFUL, 0xFFFFFFFFUL})
        EXPECT_THROW(companion.record(offset), ValueFault) << offset;
    EXPECT_THROW(Companion().record(0), ValueFault);
}

TEST(Companion, refusesARecordThatEndsTooEarly)
{
    EXPECT_THROW(Companion("\4\0\0\0one"s).record(0), ValueFault);
    EXPECT_THROW(Companion("\xFF\xFF\xFF\xFFone"s).record(0), ValueFault);
}

TEST(Companions, ofAFileThatIsNotThereHaveNoRecords)
{
    Companions companions(L"C:\\no such folder");
    EXPECT_THROW(companions.record({L"gone.frx", 0, false}), ValueFault);
}

} // namespace
} // namespace quillet::gallery

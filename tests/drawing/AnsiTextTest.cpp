// Captions in an ANSI code page: how many bytes are written of them.
#include "drawing/AnsiText.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <string>

namespace quillet {
namespace {

constexpr unsigned kWestern = 1252;
constexpr unsigned kJapanese = 932;

std::string written(AnsiText const& text) { return {text.data(), text.count()}; }

TEST(AnsiText, ofAnOrdinaryCaptionHasOneByteForEachCharacter)
{
    EXPECT_EQ(written(AnsiText(L"Save changes")), "Save changes");
    EXPECT_EQ(written(AnsiText(L"\x00C4\x00E9", kWestern)), "\xC4\xE9");
}

TEST(AnsiText, ofNoCaptionIsNoByteAtAnAddressThatIsNotNull)
{
    AnsiText const text(L"");
    EXPECT_EQ(text.count(), 0U);
    EXPECT_NE(text.data(), nullptr);
}

TEST(AnsiText, ofALongCaptionIsComplete)
{
    for (std::size_t const length : {255U, 256U, 257U, 5000U})
        EXPECT_EQ(written(AnsiText(std::wstring(length, L'x'))), std::string(length, 'x'));
}

TEST(AnsiText, keepsACharacterZeroInTheMiddle)
{
    EXPECT_EQ(written(AnsiText(std::wstring_view(L"a\0b", 3))), std::string("a\0b", 3));
}

TEST(AnsiText, ofCharactersOfTwoBytesIsCutAtTheNumberOfCharacters)
{
    if (!::IsValidCodePage(kJapanese))
        GTEST_SKIP() << "this system has no code page of two-byte characters";
    EXPECT_EQ(written(AnsiText(L"\x3042\x3044\x3046", kJapanese)), "\x82\xA0\x82");
}

TEST(AnsiText, ofCharactersOfTwoBytesIsWholeWithABlankForEachByteTooMany)
{
    if (!::IsValidCodePage(kJapanese))
        GTEST_SKIP() << "this system has no code page of two-byte characters";
    EXPECT_EQ(written(AnsiText(L"\x3042\x3044  ", kJapanese)), "\x82\xA0\x82\xA2");
}

TEST(AnsiText, neverWritesMoreBytesThanTheConversionGave)
{
    std::wstring_view const pair = L"\xD83D\xDE00"; // one character of two units
    char bytes[8];
    int const given =
        ::WideCharToMultiByte(kWestern, 0, pair.data(), 2, bytes, sizeof bytes, nullptr, nullptr);
    ASSERT_GT(given, 0);
    AnsiText const text(pair, kWestern);
    EXPECT_EQ(written(text), std::string(bytes, static_cast<std::size_t>(std::min(given, 2))));
}

TEST(AnsiText, isInTheSystemsCodePageByDefault)
{
    EXPECT_EQ(written(AnsiText(L"\x00E9")), written(AnsiText(L"\x00E9", ::GetACP())));
}

} // namespace
} // namespace quillet

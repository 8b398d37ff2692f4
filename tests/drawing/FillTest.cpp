// Filling, writing, inverting and copying: what each puts where, what it refuses, and captions in code pages.
#include "drawing/AnsiText.h"
#include "drawing/BoundSurface.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <string>

namespace quillet {
namespace {

/// Text as plain GDI writes it: the box filled, then letters clipped to it, in the default font.
void write(kit::Canvas& canvas, RECT const& box, POINT at, std::wstring const& text, COLORREF fore,
           COLORREF back)
{
    ::SetTextColor(canvas.dc(), fore);
    ::SetBkMode(canvas.dc(), TRANSPARENT);
    canvas.fill(box.left, box.top, box.right, box.bottom, back);
    int const saved = ::SaveDC(canvas.dc());
    ::IntersectClipRect(canvas.dc(), box.left, box.top, box.right, box.bottom);
    ::TextOutW(canvas.dc(), at.x, at.y, text.c_str(), static_cast<int>(text.size()));
    ::RestoreDC(canvas.dc(), saved);
}

class SurfaceCalls : public NotedSurface {
protected:
    SurfaceCalls() { begin(); }
};

TEST(FillRect, withAnEmptyCaptionFillsItsRectangleAndNothingElse)
{
    BoundSurface bound(8, 5);
    bound.surface.FillRect(2, 1, 4, 3, kRed);
    EXPECT_EQ(bound.picture(), "........\n"
                               "..RRRR..\n"
                               "..RRRR..\n"
                               "..RRRR..\n"
                               "........\n");
}

TEST(FillRect, leavesItsColourAsTheBackgroundColour)
{
    BoundSurface bound(8, 5);
    bound.surface.FillRect(2, 1, 4, 3, kRed);
    EXPECT_EQ(bound.surface.BackColor(), kRed);
}

TEST(FillRect, thatIsEmptyOrInsideOutDrawsNothingButSetsTheBackgroundColour)
{
    for (SIZE const size : {SIZE{0, 3}, SIZE{3, 0}, SIZE{0, 0}, SIZE{-3, 3}, SIZE{3, -2}, SIZE{-3, -2}}) {
        BoundSurface bound(8, 5);
        bound.surface.FillRect(4, 3, size.cx, size.cy, kRed, 0, 0, L"text");
        EXPECT_EQ(bound.surface.BackColor(), kRed);
        EXPECT_EQ(bound.picture(), "........\n........\n........\n........\n........\n")
            << size.cx << " x " << size.cy;
    }
}

TEST(FillRect, clipsItsCaptionToTheRectangle)
{
    RECT const box{10, 4, 34, 14};
    BoundSurface bound(60, 24);
    bound.surface.TextColor(kBlue);
    bound.surface.FillRect(box.left, box.top, box.right - box.left, box.bottom - box.top, kRed, 4, 1,
                           L"WWWWWWWWW");
    kit::Canvas expected(60, 24, kWhite);
    write(expected, box, {4, 1}, L"WWWWWWWWW", kBlue, kRed);
    EXPECT_GT(expected.count(kBlue), 0) << "no letter shows, so nothing is proved";
    EXPECT_EQ(bound.differencesFrom(expected), "");
}

TEST(FillRect, ignoresTheAlignmentOfTheCaption)
{
    BoundSurface plain(60, 24);
    BoundSurface aligned(60, 24);
    plain.surface.FillRect(0, 0, 60, 24, kRed, 20, 3, L"Mid", 0);
    aligned.surface.FillRect(0, 0, 60, 24, kRed, 20, 3, L"Mid", 2);
    EXPECT_EQ(plain.picture(), aligned.picture());
    EXPECT_GT(plain.target.count(kBlack), 0);
}

TEST(FillRect, writesItsCaptionAtTheOriginWhenNoPointIsGiven)
{
    BoundSurface left(60, 24);
    BoundSurface given(60, 24);
    left.surface.FillRect(0, 0, 60, 24, kRed, 0, 0, L"Mid");
    given.surface.FillRect(0, 0, 60, 24, kRed);
    kit::Canvas expected(60, 24, kWhite);
    write(expected, {0, 0, 60, 24}, {0, 0}, L"Mid", kBlack, kRed);
    EXPECT_EQ(left.differencesFrom(expected), "");
    given.surface.BlastToScreen();
    EXPECT_EQ(given.target.count(kRed), 60 * 24);
}

TEST_F(SurfaceCalls, aFillIsOneTextOutputAfterTheBackgroundColour)
{
    m_surface.FillRect(1, 2, 3, 4, 0x00FF7F01, 5, 6, L"Save", 2);
    expectCalls({"SetBkColor dc1 ff7f01", "ExtTextOutA dc1 5 6 6 (1,2,4,6) 'Save' 4 none"});
    m_surface.FillRect(0, 0, 7, 5, 0);
    expectCalls({"SetBkColor dc1 000000", "ExtTextOutA dc1 0 0 6 (0,0,7,5) '' 0 none"});
}

TEST_F(SurfaceCalls, aFillWhoseRightOrBottomEdgeOverflowsSetsTheBackgroundColourAndStops)
{
    EXPECT_EQ(thrownBy([&] { m_surface.FillRect(kMax, 0, 1, 1, kRed); }), kOverflow);
    EXPECT_EQ(thrownBy([&] { m_surface.FillRect(0, kMax, 1, 1, kRed); }), kOverflow);
    EXPECT_EQ(thrownBy([&] { m_surface.FillRect(kMin, 0, -1, 1, kRed); }), kOverflow);
    EXPECT_EQ(thrownBy([&] { m_surface.FillRect(0, kMin, 1, -1, kRed); }), kOverflow);
    expectCalls(Calls(4, "SetBkColor dc1 0000ff"));
}

TEST_F(SurfaceCalls, anEdgeAtTheEndOfTheRangeIsNoOverflow)
{
    EXPECT_EQ(thrownBy([&] { m_surface.FillRect(kMax - 1, kMax - 1, 1, 1, kRed); }), S_OK);
    EXPECT_EQ(thrownBy([&] { m_surface.InvertRectangle(kMin + 1, kMin + 1, -1, -1); }), S_OK);
}

TEST(InvertRectangle, invertsItsRectangleAndTwiceBringsThePictureBack)
{
    BoundSurface bound(6, 4);
    bound.surface.InvertRectangle(1, 1, 3, 2);
    EXPECT_EQ(bound.picture(), "......\n"
                               ".###..\n"
                               ".###..\n"
                               "......\n");
    bound.surface.InvertRectangle(1, 1, 3, 2);
    EXPECT_EQ(bound.picture(), "......\n......\n......\n......\n");
}

TEST_F(SurfaceCalls, anInversionThatOverflowsMakesNoGdiCall)
{
    EXPECT_EQ(thrownBy([&] { m_surface.InvertRectangle(kMax, 0, 1, 1); }), kOverflow);
    EXPECT_EQ(thrownBy([&] { m_surface.InvertRectangle(0, kMin, 1, -1); }), kOverflow);
    expectCalls({});
    m_surface.InvertRectangle(1, 2, 3, 4);
    expectCalls({"InvertRect dc1 (1,2,4,6)"});
}

TEST(PrintString, paintsFromItsPointToTheBottomRightCornerInTheBackgroundColour)
{
    BoundSurface bound(100, 30, kRed, kBlack);
    bound.surface.PrintString(10, 5, L"");
    kit::Canvas expected(100, 30, kWhite);
    expected.fill(10, 5, 100, 30, kRed);
    EXPECT_EQ(bound.differencesFrom(expected), "");
}

TEST(PrintString, erasesWhatWasThereAndWritesItsTextAtThePoint)
{
    BoundSurface bound(100, 30, kRed, kBlue);
    bound.surface.FillRect(0, 0, 100, 30, kGrey);
    bound.surface.BackColor(kRed);
    bound.surface.PrintString(10, 5, L"Quill");
    kit::Canvas expected(100, 30, kGrey);
    write(expected, {10, 5, 100, 30}, {10, 5}, L"Quill", kBlue, kRed);
    EXPECT_GT(expected.count(kBlue), 0);
    EXPECT_EQ(bound.differencesFrom(expected), "");
}

TEST(PrintString, outsideTheSurfaceChangesNothing)
{
    BoundSurface bound(6, 2, kRed, kBlack);
    bound.surface.PrintString(7, 0, L"text");
    bound.surface.PrintString(0, 3, L"text");
    EXPECT_EQ(bound.picture(), "......\n......\n");
}

TEST_F(SurfaceCalls, printingIsOneTextOutputThatSetsNoColour)
{
    m_surface.PrintString(1, 2, L"Save");
    expectCalls({"ExtTextOutA dc1 1 2 6 (1,2,7,5) 'Save' 4 none"});
}

TEST(BlastToScreen, withoutArgumentsCopiesTheWholeSurfaceToTheOrigin)
{
    BoundSurface bound(4, 2);
    bound.surface.FillRect(1, 0, 2, 2, kRed);
    EXPECT_EQ(bound.targetPicture(), "gggg\ngggg\n");
    bound.surface.BlastToScreen();
    EXPECT_EQ(bound.targetPicture(), ".RR.\n.RR.\n");
}

TEST(BlastToScreen, copiesARectangleToTheSamePlace)
{
    BoundSurface bound(6, 4);
    bound.surface.FillRect(2, 1, 1, 1, kRed);
    long width = 3;
    long height = 2;
    bound.surface.BlastToScreen(1, 1, width, height);
    EXPECT_EQ(bound.targetPicture(), "gggggg\n"
                                     "g.R.gg\n"
                                     "g...gg\n"
                                     "gggggg\n");
    EXPECT_EQ(width, 3);
    EXPECT_EQ(height, 2);
}

/// Copies a surface of 4 by 3 pixels; the width and height that are filled in, and the picture.
std::string copied(long width, long height)
{
    BoundSurface bound(4, 3);
    bound.surface.BlastToScreen(0, 0, width, height);
    return std::to_string(width) + " x " + std::to_string(height) + '\n' + bound.targetPicture();
}

TEST(BlastToScreen, withWidthMinusOneAndAHeightFillsInOnlyTheCallersWidth)
{
    EXPECT_EQ(copied(-1, 2), "4 x 2\n....\n....\ngggg\n");
}

TEST(BlastToScreen, withHeightMinusOneAndAWidthFillsInOnlyTheCallersHeight)
{
    EXPECT_EQ(copied(2, -1), "2 x 3\n..gg\n..gg\n..gg\n");
}

TEST_F(SurfaceCalls, argumentsOfBlastToScreenMayBeLeftOutFromTheEnd)
{
    long width = -1;
    m_surface.BlastToScreen(1);
    m_surface.BlastToScreen(1, 2);
    m_surface.BlastToScreen(1, 2, width);
    m_surface.BlastToScreen(0, 0, -1, -1);
    m_surface.BlastToScreen(0, 0, -2, 3);
    EXPECT_EQ(width, 7);
    expectCalls({"BitBlt target 1 0 7 5 dc1 1 0 cc0020", "BitBlt target 1 2 7 5 dc1 1 2 cc0020",
                 "BitBlt target 1 2 7 5 dc1 1 2 cc0020", "BitBlt target 0 0 7 5 dc1 0 0 cc0020",
                 "BitBlt target 0 0 -2 3 dc1 0 0 cc0020"});
}

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

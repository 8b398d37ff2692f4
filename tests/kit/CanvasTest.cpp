// Pictures as text.
#include "kit/Canvas.h"

#include "kit/Painter.h"

#include <gtest/gtest.h>

namespace quillet::kit {
namespace {

constexpr COLORREF kRed = RGB(200, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 201);
Letters const kLetters{{'.', RGB(1, 2, 3)}, {'r', kRed}, {'b', kBlue}};

TEST(Canvas, showsWhatGdiDrewAndWhatNobodyNamed)
{
    Canvas canvas(5, 3, RGB(1, 2, 3));
    ::SetPixel(canvas.dc(), 0, 0, kRed);
    ::SetPixel(canvas.dc(), 4, 2, kBlue);
    ::SetPixel(canvas.dc(), 2, 1, RGB(9, 9, 9));
    EXPECT_EQ(canvas.picture(kLetters), "r....\n"
                                        "..?..\n"
                                        "....b\n");
    EXPECT_EQ(canvas.picture(kLetters, 3, 1, 5, 3), "..\n.b\n");
    EXPECT_EQ(canvas.at(0, 0), kRed);
    EXPECT_EQ(canvas.at(5, 0), CLR_INVALID);
    EXPECT_EQ(canvas.count(RGB(1, 2, 3)), 12);
}

TEST(Canvas, fillsARectangleAndCutsItAtTheEdges)
{
    Canvas canvas(4, 3, RGB(1, 2, 3));
    canvas.fill(1, 1, 3, 2, kRed);
    canvas.fill(3, -5, 99, 99, kBlue);
    canvas.fill(3, 0, 1, 3, kRed); // turned round: nothing
    EXPECT_EQ(canvas.picture(kLetters), "...b\n"
                                        ".rrb\n"
                                        "...b\n");
    EXPECT_EQ(::GetPixel(canvas.dc(), 1, 1), kRed);
}

TEST(Canvas, differencesNamePixelsAndAreEmptyForEqualPictures)
{
    Canvas expected(4, 3, kRed);
    Canvas actual(4, 3, kRed);
    EXPECT_EQ(differences(expected, actual), "");
    actual.fill(2, 1, 3, 2, kBlue);
    EXPECT_EQ(differences(expected, actual),
              "(2, 1): 0x0000C8 was expected, found 0xC90000\n1 pixels differ");
    EXPECT_EQ(differences(Canvas(4, 4), actual), "4 x 4 was expected, found 4 x 3");
}

TEST(Painter, writesTextInsideItsBoxOnly)
{
    Canvas canvas(60, 40, kBlue);
    auto const font = static_cast<HFONT>(::GetStockObject(SYSTEM_FONT));
    SIZE const size = textSize(font, L"Wide");
    paintText(canvas, {10, 5, 30, 35}, {12, 8}, L"Wide", font, kRed, RGB(255, 255, 255));
    EXPECT_GT(size.cx, 18) << "the text must be wider than its box";
    EXPECT_EQ(canvas.count(kBlue), 60 * 40 - 20 * 30);
    EXPECT_GT(canvas.count(kRed), 0);
}

} // namespace
} // namespace quillet::kit

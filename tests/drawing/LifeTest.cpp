// The surface's life: what it makes, what it frees, and in which order.
#include "drawing/BoundSurface.h"
#include "drawing/FakeFont.h"

#include <gtest/gtest.h>

#include <memory>

namespace quillet {
namespace {

class SurfaceLife : public NotedTarget {};

TEST_F(SurfaceLife, initializeMakesADcAndABitmapThatIsCompatibleWithTheTargetAndSelectsIt)
{
    OffScreenDC surface;
    initialize(surface);
    expectCalls({"CreateCompatibleDC target -> dc1", "CreateCompatibleBitmap target 7 5 -> bitmap1",
                 "SelectObject dc1 bitmap1 -> initial bitmap"});
}

TEST_F(SurfaceLife, theBitmapHasTheTargetsColoursAndTheSizeGiven)
{
    OffScreenDC surface;
    initialize(surface);
    BITMAP bitmap{};
    ASSERT_NE(::GetObjectW(m_gdi.handle("bitmap1"), sizeof bitmap, &bitmap), 0);
    EXPECT_EQ(bitmap.bmWidth, 7);
    EXPECT_EQ(bitmap.bmHeight, 5);
    EXPECT_EQ(bitmap.bmBitsPixel, 32);
}

TEST_F(SurfaceLife, theEndSelectsTheInitialFontAndBitmapAndDeletesTheBitmapBeforeTheDc)
{
    {
        OffScreenDC surface;
        initialize(surface);
        m_record->forget();
    }
    expectCalls({"SelectObject dc1 none -> none", "SelectObject dc1 initial bitmap -> bitmap1",
                 "DeleteObject bitmap1", "DeleteDC dc1"});
}

TEST_F(SurfaceLife, theEndOfAPaintLeavesNeitherDcNorBitmap)
{
    void* dc = nullptr;
    void* bitmap = nullptr;
    {
        OffScreenDC surface;
        initialize(surface);
        surface.FillRect(0, 0, 7, 5, kRed, 1, 1, L"text");
        surface.BlastToScreen();
        dc = m_gdi.handle("dc1");
        bitmap = m_gdi.handle("bitmap1");
        EXPECT_EQ(::GetObjectType(dc), DWORD{OBJ_MEMDC});
        EXPECT_EQ(::GetObjectType(bitmap), DWORD{OBJ_BITMAP});
    }
    EXPECT_EQ(::GetObjectType(dc), 0U);
    EXPECT_EQ(::GetObjectType(bitmap), 0U);
    EXPECT_EQ(::GetObjectType(m_target.dc()), DWORD{OBJ_MEMDC}); // the target is not the surface's own
}

TEST_F(SurfaceLife, theFontIsGivenUpAfterTheDc)
{
    auto const font =
        kit::make<FakeFont>(m_record, "font", static_cast<HFONT>(::GetStockObject(ANSI_VAR_FONT)));
    m_gdi.name(::GetStockObject(ANSI_VAR_FONT), "handle");
    {
        OffScreenDC surface;
        initialize(surface);
        surface.Font(font.get());
        EXPECT_EQ(font->references(), 2U);
        m_record->forget();
    }
    expectCalls({"SelectObject dc1 initial font -> handle", "SelectObject dc1 initial bitmap -> bitmap1",
                 "DeleteObject bitmap1", "DeleteDC dc1", "font.Release"});
    EXPECT_EQ(font->references(), 1U);
}

TEST_F(SurfaceLife, aSurfaceThatWasNeverInitializedEndsWithoutAnyGdiCall)
{
    {
        OffScreenDC const surface;
    }
    expectCalls({});
}

TEST_F(SurfaceLife, aFontOfASurfaceThatWasNeverInitializedIsStillGivenUp)
{
    auto const font = kit::make<FakeFont>(m_record, "font", nullptr);
    {
        OffScreenDC surface;
        surface.Font(font.get());
        m_record->forget();
    }
    expectCalls({"font.Release"});
}

TEST_F(SurfaceLife, aSecondInitializeOverwritesTheHandlesAndFreesNothingOfTheFirst)
{
    {
        OffScreenDC surface;
        initialize(surface);
        m_record->forget();
        initialize(surface);
        expectCalls({"CreateCompatibleDC target -> dc2", "CreateCompatibleBitmap target 7 5 -> bitmap2",
                     "SelectObject dc2 bitmap2 -> initial bitmap"});
    }
    expectCalls({"SelectObject dc2 none -> none", "SelectObject dc2 initial bitmap -> bitmap2",
                 "DeleteObject bitmap2", "DeleteDC dc2"});
    UniqueBitmap const firstBitmap(static_cast<HBITMAP>(m_gdi.handle("bitmap1")));
    UniqueMemoryDc const firstDc(static_cast<HDC>(m_gdi.handle("dc1")));
    EXPECT_EQ(::GetObjectType(firstDc.get()), DWORD{OBJ_MEMDC});
    EXPECT_EQ(::GetObjectType(firstBitmap.get()), DWORD{OBJ_BITMAP});
}

TEST_F(SurfaceLife, theThreeDColoursAreBlackAtAnyTime)
{
    OffScreenDC surface;
    auto const allBlack = [&] {
        return surface.ThreeDFaceColor() == 0 && surface.ThreeDHighlightColor() == 0 &&
               surface.ThreeDShadowColor() == 0;
    };
    EXPECT_TRUE(allBlack());
    initialize(surface);
    EXPECT_TRUE(allBlack());
    surface.Draw3DBorder(kRed, kBlue, 2);
    EXPECT_TRUE(allBlack());
}

TEST_F(SurfaceLife, theBackAndTextColoursAreThoseOfTheMemoryDc)
{
    OffScreenDC surface;
    initialize(surface);
    m_record->forget();
    surface.BackColor(0x123456);
    surface.TextColor(0x654321);
    EXPECT_EQ(surface.BackColor(), COLORREF{0x123456});
    EXPECT_EQ(surface.TextColor(), COLORREF{0x654321});
    expectCalls({"SetBkColor dc1 123456", "SetTextColor dc1 654321", "GetBkColor dc1", "GetTextColor dc1"});
}

/// Every operation once; the names of the GDI functions that it called.
Calls namesOfAPaint(kit::Canvas const& target, kit::Record& record)
{
    auto const font = kit::make<FakeFont>(std::make_shared<kit::Record>(), "font",
                                          static_cast<HFONT>(::GetStockObject(ANSI_VAR_FONT)));
    {
        OffScreenDC surface;
        surface.Initialize(target.dc(), target.width(), target.height());
        surface.Font(font.get());
        surface.TextColor(kBlue);
        surface.FillRect(0, 0, 7, 5, kRed, 0, 0, L"text");
        surface.PrintString(1, 1, L"more");
        surface.InvertRectangle(0, 0, 2, 2);
        surface.Draw3DBorder(kRed, kBlue, 1);
        surface.BlastToScreen();
        record.note("end");
    }
    Calls names;
    for (std::string const& call : record.take())
        names.push_back(call.substr(0, call.find(' ')));
    names.erase(std::ranges::find(names, "end"), names.end());
    return names;
}

TEST_F(SurfaceLife, aGdiCallThatFailsIsPassedOverAndThePaintGoesOn)
{
    Calls const untroubled = namesOfAPaint(m_target, *m_record);
    for (char const* function :
         {"CreateCompatibleDC", "CreateCompatibleBitmap", "SelectObject", "ExtTextOutA", "BitBlt",
          "InvertRect", "SetBkColor", "SetTextColor", "LineTo", "MoveToEx", "SetROP2"}) {
        m_gdi.fail(function);
        Calls names;
        EXPECT_EQ(thrownBy([&] { names = namesOfAPaint(m_target, *m_record); }), S_OK) << function;
        EXPECT_EQ(names, untroubled) << function << " failed";
        m_gdi.work(function);
    }
}

} // namespace
} // namespace quillet

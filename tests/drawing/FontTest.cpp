// The surface's font: whom it counts, what it selects, and what an empty or failing font does.
#include "base/ComCall.h"
#include "drawing/BoundSurface.h"
#include "drawing/FakeFont.h"
#include "kit/Canvas.h"
#include "kit/Fonts.h"

#include <gtest/gtest.h>

namespace quillet {
namespace {

HFONT stockFont(int index) { return static_cast<HFONT>(::GetStockObject(index)); }

class SurfaceFont : public NotedSurface {
protected:
    SurfaceFont()
    {
        m_gdi.name(stockFont(ANSI_VAR_FONT), "handle1");
        m_gdi.name(stockFont(ANSI_FIXED_FONT), "handle2");
        begin();
    }
    /// The calls that giving a font makes.
    Calls callsOf(IFont* font)
    {
        m_record->forget();
        m_surface.Font(font);
        return m_record->take();
    }
    HRESULT thrownByFont(IFont* font)
    {
        return thrownBy([&] { m_surface.Font(font); });
    }

    ComPtr<FakeFont> m_font1 = kit::make<FakeFont>(m_record, "font1", stockFont(ANSI_VAR_FONT));
    ComPtr<FakeFont> m_font2 = kit::make<FakeFont>(m_record, "font2", stockFont(ANSI_FIXED_FONT));
};

TEST_F(SurfaceFont, theFirstFontIsCountedOnceAndItsHandleSelected)
{
    EXPECT_EQ(callsOf(m_font1.get()),
              (Calls{"font1.AddRef", "font1.get_hFont", "SelectObject dc1 handle1 -> initial font"}));
}

TEST_F(SurfaceFont, aSecondFontReplacesTheFirstWhichIsGivenUpBeforeTheSecondIsCounted)
{
    m_surface.Font(m_font1.get());
    EXPECT_EQ(callsOf(m_font2.get()), (Calls{"font1.Release", "font2.AddRef", "font2.get_hFont",
                                             "SelectObject dc1 handle2 -> handle1"}));
    EXPECT_EQ(m_font1->references(), 1U);
    EXPECT_EQ(m_font2->references(), 2U);
}

TEST_F(SurfaceFont, theSameFontSetAgainIsAskedForItsHandleAgain)
{
    m_surface.Font(m_font1.get());
    EXPECT_EQ(callsOf(m_font1.get()), (Calls{"font1.Release", "font1.AddRef", "font1.get_hFont",
                                             "SelectObject dc1 handle1 -> handle1"}));
}

TEST_F(SurfaceFont, afterASecondFontAnEmptyOneBringsBackTheInitialFontNotTheFirst)
{
    m_surface.Font(m_font1.get());
    m_surface.Font(m_font2.get());
    EXPECT_EQ(callsOf(nullptr), (Calls{"font2.Release", "SelectObject dc1 initial font -> handle2"}));
    EXPECT_FALSE(m_surface.Font());
}

TEST_F(SurfaceFont, afterAnEmptyFontTheNextOneIsAFirstAgain)
{
    m_surface.Font(m_font1.get());
    m_surface.Font(nullptr);
    m_record->forget();
    m_surface.Font(m_font2.get());
    m_surface.Font(nullptr);
    expectCalls({"font2.AddRef", "font2.get_hFont", "SelectObject dc1 handle2 -> initial font",
                 "font2.Release", "SelectObject dc1 initial font -> handle2"});
}

TEST_F(SurfaceFont, anEmptyFontBeforeAnyOtherIsAnObjectThatIsNotSet)
{
    EXPECT_EQ(thrownByFont(nullptr), kObjectNotSet);
    expectCalls({});
    EXPECT_FALSE(m_surface.Font());
}

TEST_F(SurfaceFont, anEmptyFontIsRefusedAgainOnceTheFontIsEmpty)
{
    m_surface.Font(m_font1.get());
    m_surface.Font(nullptr);
    EXPECT_EQ(thrownByFont(nullptr), kObjectNotSet);
}

TEST_F(SurfaceFont, aFirstFontThatHasNoHandleToGiveFailsAndIsStoredAllTheSame)
{
    m_record->answer("font1.get_hFont", CTL_E_OUTOFMEMORY);
    EXPECT_EQ(thrownByFont(m_font1.get()), CTL_E_OUTOFMEMORY);
    expectCalls({"font1.AddRef", "font1.get_hFont"});
    EXPECT_EQ(m_font1->references(), 2U);
}

TEST_F(SurfaceFont, afterAFirstFontThatFailedThereIsNoInitialFontToBringBack)
{
    m_record->answer("font1.get_hFont", E_FAIL);
    EXPECT_EQ(thrownByFont(m_font1.get()), E_FAIL);
    m_record->forget();
    m_surface.Font(m_font2.get());
    m_surface.Font(nullptr);
    expectCalls({"font1.Release", "font2.AddRef", "font2.get_hFont",
                 "SelectObject dc1 handle2 -> initial font", "font2.Release",
                 "SelectObject dc1 none -> none"});
}

TEST_F(SurfaceFont, aSecondFontThatFailsLeavesTheFirstSelectedAndTheSecondStored)
{
    m_surface.Font(m_font1.get());
    m_record->forget();
    m_record->answer("font2.get_hFont", E_FAIL);
    EXPECT_EQ(thrownByFont(m_font2.get()), E_FAIL);
    expectCalls({"font1.Release", "font2.AddRef", "font2.get_hFont"});
    EXPECT_EQ(::GetCurrentObject(dc(), OBJ_FONT), stockFont(ANSI_VAR_FONT));
    EXPECT_EQ(m_font2->references(), 2U);
}

TEST_F(SurfaceFont, aFontThatFailsIsReportedWithTheFontInterfaceAsItsSource)
{
    m_record->answer("font1.get_hFont", E_FAIL);
    ErrorSource const method{L"Quillet.qvFlatCommand", IID_IDispatch, 0};
    EXPECT_EQ(comCall(method, [&] { m_surface.Font(m_font1.get()); }), E_FAIL);
    ComPtr<IErrorInfo> info;
    ASSERT_EQ(::GetErrorInfo(0, info.put()), S_OK);
    GUID source{};
    info->GetGUID(&source);
    EXPECT_TRUE(source == IID_IFont);
}

TEST_F(SurfaceFont, theFontReadBackIsTheObjectGivenByItsDispatchInterface)
{
    EXPECT_FALSE(m_surface.Font());
    auto const font = kit::newFont(L"Arial", 9);
    m_surface.Font(font.get());
    ComPtr<IFontDisp> const readBack = m_surface.Font();
    ASSERT_TRUE(readBack);
    EXPECT_EQ(readBack.get(), font.as<IFontDisp>(IID_IFontDisp).get());
    EXPECT_EQ(readBack.as<IUnknown>(IID_IUnknown).get(), font.as<IUnknown>(IID_IUnknown).get());
}

TEST_F(SurfaceFont, theTextIsWrittenInTheFontGiven)
{
    auto const font = kit::newFont(L"Arial", 14);
    BoundSurface actual(80, 30);
    actual.surface.Font(font.get());
    actual.surface.FillRect(0, 0, 80, 30, kWhite, 2, 3, L"Quill");
    kit::Canvas expected(80, 30, kWhite);
    SelectScope const selected(expected.dc(), kit::handleOf(*font.get()));
    ::TextOutW(expected.dc(), 2, 3, L"Quill", 5);
    EXPECT_GT(expected.count(kWhite), 0);
    EXPECT_LT(expected.count(kWhite), 80 * 30);
    EXPECT_EQ(actual.differencesFrom(expected), "");
}

TEST_F(SurfaceFont, aTextIsMeasuredInTheFontGivenAndDrawsNothing)
{
    BoundSurface bound(80, 30);
    for (int const points : {8, 20}) {
        auto const font = kit::newFont(L"Arial", points);
        bound.surface.Font(font.get());
        SIZE const expected = kit::textSize(kit::handleOf(*font.get()), L"Quill");
        SIZE const measured = bound.surface.textExtent(L"Quill");
        EXPECT_EQ(measured.cx, expected.cx) << points << " points";
        EXPECT_EQ(measured.cy, expected.cy) << points << " points";
    }
    bound.surface.BlastToScreen();
    EXPECT_EQ(bound.target.count(kWhite), 80 * 30);
}

TEST_F(SurfaceFont, aTextIsMeasuredAsItIsWrittenInTheCodePage)
{
    BoundSurface bound(80, 30);
    auto const font = kit::newFont(L"Arial", 20);
    bound.surface.Font(font.get());
    std::wstring const text = L"\x4E2D\x0E01\x0416\x4E2D";
    SIZE const expected = kit::textSize(kit::handleOf(*font.get()), kit::inCodePage(text));
    ASSERT_NE(expected.cx, kit::textSize(kit::handleOf(*font.get()), text).cx) << "nothing would be seen";
    EXPECT_EQ(bound.surface.textExtent(text).cx, expected.cx);
    EXPECT_EQ(bound.surface.textExtent(text).cy, expected.cy);
}

} // namespace
} // namespace quillet

// Drawing into any device context, and who is told of a changed look.
#include "SurfaceTest.h"
#include "kit/Canvas.h"

#include <ocidl.h>

namespace quillet::hosting {
namespace {

kit::Letters const kLetters{{'.', kBack}, {'#', kBorder}, {' ', kPaper}};

constexpr char kButton[] = "                \n"
                           "  ##########    \n"
                           "  #........#    \n"
                           "  #........#    \n"
                           "  #........#    \n"
                           "  ##########    \n"
                           "                \n";

struct EnhancedMetafileTraits {
    using Handle = HENHMETAFILE;
    static void close(HENHMETAFILE file) noexcept { ::DeleteEnhMetaFile(file); }
};
struct MetafileTraits {
    using Handle = HMETAFILE;
    static void close(HMETAFILE file) noexcept { ::DeleteMetaFile(file); }
};

class View : public SurfaceTest {
protected:
    kit::Canvas canvas{16, 7, kPaper};
    RECTL bounds{2, 1, 12, 6};

    /// Plain colours, and an extent that is the bounds' size: the picture is made at its natural size.
    void dress(SIZE pixels = {10, 5})
    {
        SIZEL extent = kit::himetricOf(pixels);
        EXPECT_EQ(as<IOleObject>()->SetExtent(DVASPECT_CONTENT, &extent), S_OK);
        EXPECT_EQ(button()->put_Caption(nullptr), S_OK);
        EXPECT_EQ(button()->put_BackColor(kBack), S_OK);
        EXPECT_EQ(button()->put_BorderColor(kBorder), S_OK);
    }
    HRESULT draw(HDC dc, LONG part = -1, DWORD aspect = DVASPECT_CONTENT)
    {
        return as<IViewObject>()->Draw(aspect, part, nullptr, nullptr, nullptr, dc, &bounds, nullptr, nullptr,
                                       0);
    }
};

TEST_F(View, drawsIntoItsBoundsOnlyBeforeItHasASite)
{
    dress();
    EXPECT_EQ(draw(canvas.dc()), S_OK);
    EXPECT_EQ(canvas.picture(kLetters), kButton);
}

TEST_F(View, drawsIntoItsBoundsWhileItIsActive)
{
    control.start();
    dress();
    EXPECT_EQ(button()->put_BorderWidth(Variant::ofShort(3).get()), S_OK);
    kit::Canvas wide(126, 43, kPaper);
    bounds = {2, 1, 122, 41};
    EXPECT_EQ(draw(wide.dc()), S_OK);
    kit::Canvas expected(126, 43, kPaper);
    expected.fill(2, 1, 122, 41, kBorder);
    expected.fill(5, 4, 119, 38, kBack);
    EXPECT_EQ(kit::differences(expected, wide), "");
    RECT client{};
    ::GetClientRect(control.window(), &client);
    EXPECT_EQ(client.right, 120) << "the window took the picture's size";
}

TEST_F(View, doesNotPaintTheWindowWhileDrawingElsewhere)
{
    control.start();
    kit::Canvas before(120, 40);
    kit::readWindow(control.window(), before);
    dress();
    {
        WindowDc const dc(control.window());
        ::PatBlt(dc.get(), 0, 0, 120, 40, BLACKNESS);
    }
    bounds = {0, 0, 120, 40};
    kit::Canvas elsewhere(120, 40, kPaper);
    EXPECT_EQ(draw(elsewhere.dc()), S_OK);
    kit::Canvas window(120, 40);
    kit::readWindow(control.window(), window);
    EXPECT_EQ(window.count(0), 120 * 40);
    EXPECT_EQ(elsewhere.count(kPaper), 0);
}

TEST_F(View, drawsItsOnlyPartByEitherOfItsNumbers)
{
    dress();
    EXPECT_EQ(draw(canvas.dc(), 0), S_OK);
    EXPECT_EQ(canvas.picture(kLetters), kButton);
}

TEST_F(View, refusesOtherAspectsAndNowhere)
{
    EXPECT_EQ(draw(canvas.dc(), -1, DVASPECT_ICON), DV_E_DVASPECT);
    EXPECT_TRUE(FAILED(as<IViewObject>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, canvas.dc(),
                                               nullptr, nullptr, nullptr, 0)));
    EXPECT_TRUE(FAILED(draw(nullptr)));
    EXPECT_EQ(canvas.count(kPaper), 16 * 7);
}

TEST_F(View, drawsInTheCoordinatesOfTheDeviceContext)
{
    dress();
    ::SetViewportOrgEx(canvas.dc(), 1, -3, nullptr);
    bounds = {1, 4, 11, 9};
    EXPECT_EQ(draw(canvas.dc()), S_OK);
    EXPECT_EQ(canvas.picture(kLetters), kButton);
    POINT origin{};
    ::GetViewportOrgEx(canvas.dc(), &origin);
    EXPECT_EQ(origin.x, 1);
    EXPECT_EQ(origin.y, -3);
}

TEST_F(View, drawsInLogicalUnitsOfAnotherSize)
{
    dress();
    kit::Canvas large(32, 14, kPaper);
    ::SetMapMode(large.dc(), MM_ANISOTROPIC);
    ::SetWindowExtEx(large.dc(), 16, 7, nullptr);
    ::SetViewportExtEx(large.dc(), 32, 14, nullptr);
    EXPECT_EQ(draw(large.dc()), S_OK);
    EXPECT_EQ(large.at(14, 6), kBack);
    EXPECT_EQ(large.at(4, 2), kBorder);
    EXPECT_EQ(large.at(3, 2), kPaper);
    EXPECT_EQ(large.at(4, 1), kPaper);
    EXPECT_EQ(large.at(23, 11), kBorder);
    EXPECT_EQ(large.at(24, 6), kPaper);
    EXPECT_EQ(large.at(14, 12), kPaper);
}

TEST_F(View, leavesTheDeviceContextAsItWas)
{
    dress();
    HGDIOBJ const font = ::GetCurrentObject(canvas.dc(), OBJ_FONT);
    HGDIOBJ const pen = ::GetCurrentObject(canvas.dc(), OBJ_PEN);
    HGDIOBJ const brush = ::GetCurrentObject(canvas.dc(), OBJ_BRUSH);
    ::SetTextColor(canvas.dc(), RGB(1, 2, 3));
    ::SetBkColor(canvas.dc(), RGB(4, 5, 6));
    EXPECT_EQ(draw(canvas.dc()), S_OK);
    EXPECT_EQ(::GetCurrentObject(canvas.dc(), OBJ_FONT), font);
    EXPECT_EQ(::GetCurrentObject(canvas.dc(), OBJ_PEN), pen);
    EXPECT_EQ(::GetCurrentObject(canvas.dc(), OBJ_BRUSH), brush);
    EXPECT_EQ(::GetTextColor(canvas.dc()), RGB(1, 2, 3));
    EXPECT_EQ(::GetBkColor(canvas.dc()), RGB(4, 5, 6));
    RECT clip{};
    EXPECT_EQ(::GetClipBox(canvas.dc(), &clip), SIMPLEREGION);
    EXPECT_EQ(clip, (RECT{0, 0, 16, 7}));
}

TEST_F(View, drawsIntoAnEnhancedMetafile)
{
    dress();
    HDC const recording = ::CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(draw(recording), S_OK);
    UniqueHandle<EnhancedMetafileTraits> const file(::CloseEnhMetaFile(recording));
    ENHMETAHEADER header{};
    ASSERT_TRUE(::GetEnhMetaFileHeader(file.get(), sizeof header, &header));
    RECT const whole{header.rclBounds.left, header.rclBounds.top, header.rclBounds.right,
                     header.rclBounds.bottom};
    EXPECT_EQ(whole, (RECT{2, 1, 11, 5}));
    kit::Canvas played(100, 50, kPaper);
    RECT const all{0, 0, 99, 49};
    ::PlayEnhMetaFile(played.dc(), file.get(), &all);
    EXPECT_GT(played.count(kBack), 0);
    EXPECT_GT(played.count(kBorder), 0);
}

TEST_F(View, drawsIntoAWindowsMetafileWithTheWindowThatItIsGiven)
{
    dress();
    HDC const recording = ::CreateMetaFileW(nullptr);
    ::SetMapMode(recording, MM_ANISOTROPIC);
    ::SetWindowOrgEx(recording, 0, 0, nullptr);
    ::SetWindowExtEx(recording, 16, 7, nullptr);
    RECTL const window{0, 0, 16, 7};
    EXPECT_EQ(as<IViewObject>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, recording, &bounds,
                                      &window, nullptr, 0),
              S_OK);
    UniqueHandle<MetafileTraits> const file(::CloseMetaFile(recording));
    ASSERT_TRUE(file);
    kit::Canvas played(160, 70, kPaper);
    ::SetMapMode(played.dc(), MM_ANISOTROPIC);
    ::SetViewportExtEx(played.dc(), 160, 70, nullptr);
    ::PlayMetaFile(played.dc(), file.get());
    EXPECT_EQ(played.at(70, 35), kBack);
    EXPECT_EQ(played.at(25, 15), kBorder);
    EXPECT_EQ(played.at(150, 35), kPaper);
}

TEST_F(View, saysHowItStandsUnderAPoint)
{
    auto const view = as<IViewObjectEx>();
    RECT const place{10, 10, 30, 20};
    DWORD hit = 77;
    EXPECT_EQ(view->QueryHitPoint(DVASPECT_CONTENT, &place, {15, 15}, 0, &hit), S_OK);
    EXPECT_EQ(hit, static_cast<DWORD>(HITRESULT_HIT));
    EXPECT_EQ(view->QueryHitPoint(DVASPECT_CONTENT, &place, {30, 15}, 0, &hit), S_OK);
    EXPECT_EQ(hit, static_cast<DWORD>(HITRESULT_OUTSIDE));
    RECT const touching{25, 15, 60, 60};
    EXPECT_EQ(view->QueryHitRect(DVASPECT_CONTENT, &place, &touching, 0, &hit), S_OK);
    EXPECT_EQ(hit, static_cast<DWORD>(HITRESULT_HIT));
    RECT const beyond{40, 40, 60, 60};
    EXPECT_EQ(view->QueryHitRect(DVASPECT_CONTENT, &place, &beyond, 0, &hit), S_OK);
    EXPECT_EQ(hit, static_cast<DWORD>(HITRESULT_OUTSIDE));
    DWORD status = 0;
    EXPECT_EQ(view->GetViewStatus(&status), S_OK);
    EXPECT_TRUE(status & VIEWSTATUS_OPAQUE);
    EXPECT_EQ(view->GetViewStatus(nullptr), E_POINTER);
    EXPECT_EQ(view->QueryHitPoint(DVASPECT_CONTENT, &place, {15, 15}, 0, nullptr), E_POINTER);
}

class ViewAdvise : public View {
protected:
    ComPtr<IViewObject> view = as<IViewObject>();
    ComPtr<kit::ViewRecorder> sink = kit::make<kit::ViewRecorder>();

    static constexpr char kChanged[] = "OnViewChange(1,-1)";
    void TearDown() override
    {
        view->SetAdvise(DVASPECT_CONTENT, 0, nullptr);
        View::TearDown();
    }
};

TEST_F(ViewAdvise, keepsOneSinkAndShowsIt)
{
    DWORD aspects = 77;
    DWORD flags = 77;
    ComPtr<IAdviseSink> kept;
    EXPECT_EQ(view->GetAdvise(&aspects, &flags, kept.put()), S_OK);
    EXPECT_FALSE(kept);
    EXPECT_EQ(view->SetAdvise(DVASPECT_CONTENT, 0, sink.get()), S_OK);
    EXPECT_EQ(view->GetAdvise(&aspects, &flags, kept.put()), S_OK);
    EXPECT_EQ(kept.get(), sink.get());
    EXPECT_EQ(aspects, static_cast<DWORD>(DVASPECT_CONTENT));
    EXPECT_EQ(flags, 0U);
    EXPECT_EQ(view->GetAdvise(nullptr, nullptr, nullptr), S_OK);
    EXPECT_EQ(view->SetAdvise(DVASPECT_CONTENT, 0, nullptr), S_OK);
    EXPECT_EQ(view->GetAdvise(nullptr, nullptr, kept.put()), S_OK);
    EXPECT_FALSE(kept);
}

TEST_F(ViewAdvise, refusesOtherAspects)
{
    EXPECT_TRUE(FAILED(view->SetAdvise(DVASPECT_ICON, 0, sink.get())));
}

TEST_F(ViewAdvise, tellsOfAChangedLookAndNotOfAnotherChange)
{
    control.start();
    ASSERT_EQ(view->SetAdvise(DVASPECT_CONTENT, 0, sink.get()), S_OK);
    EXPECT_EQ(button()->put_BackColor(kBack), S_OK);
    EXPECT_GE(sink->count(kChanged), 1);
    sink->calls.clear();
    EXPECT_EQ(button()->put_HotBackColor(kBack), S_OK);
    EXPECT_EQ(button()->put_ToolTipText(Bstr(L"tip").get()), S_OK);
    EXPECT_EQ(sink->count(kChanged), 0);
}

TEST_F(ViewAdvise, tellsAtOnceWhenPrimed)
{
    ASSERT_EQ(view->SetAdvise(DVASPECT_CONTENT, ADVF_PRIMEFIRST, sink.get()), S_OK);
    EXPECT_EQ(sink->count(kChanged), 1);
    EXPECT_EQ(button()->put_BackColor(kBack), S_OK);
    EXPECT_GE(sink->count(kChanged), 2);
}

TEST_F(ViewAdvise, tellsOnceWhenAskedForOneOnly)
{
    ASSERT_EQ(view->SetAdvise(DVASPECT_CONTENT, ADVF_ONLYONCE, sink.get()), S_OK);
    EXPECT_EQ(button()->put_BackColor(kBack), S_OK);
    EXPECT_EQ(button()->put_BackColor(kBorder), S_OK);
    EXPECT_EQ(sink->count(kChanged), 1);
}

TEST_F(ViewAdvise, mayTakeItsSinkAwayWhileItIsTold)
{
    ASSERT_EQ(view->SetAdvise(DVASPECT_CONTENT, 0, sink.get()), S_OK);
    sink->action = [this](std::string const&) { view->SetAdvise(DVASPECT_CONTENT, 0, nullptr); };
    EXPECT_EQ(button()->put_BackColor(kBack), S_OK);
    EXPECT_EQ(button()->put_BackColor(kBorder), S_OK);
    EXPECT_EQ(sink->count(kChanged), 1);
}

} // namespace
} // namespace quillet::hosting

// Quick activation: site, sinks and ambient values in one call.
#include "SurfaceTest.h"
#include "kit/Fonts.h"

namespace quillet::hosting {
namespace {

class Quick : public SurfaceTest {
protected:
    QACONTAINER container{};
    QACONTROL answer{};
    ComPtr<kit::EventRecorder> events = kit::make<kit::EventRecorder>(kQvFlatCommandEvents);
    ComPtr<kit::ChangeRecorder> changes = kit::make<kit::ChangeRecorder>();

    void SetUp() override
    {
        SurfaceTest::SetUp();
        container.cbSize = sizeof container;
        container.pClientSite = &control.site();
        container.dwAmbientFlags =
            QACONTAINER_USERMODE | QACONTAINER_SUPPORTSMNEMONICS | QACONTAINER_MESSAGEREFLECT;
        answer.cbSize = sizeof answer;
    }
    HRESULT activate() { return as<IQuickActivate>()->QuickActivate(&container, &answer); }
    void cut(IID const& iid, DWORD cookie)
    {
        ComPtr<IConnectionPoint> point;
        ASSERT_EQ(as<IConnectionPointContainer>()->FindConnectionPoint(iid, point.put()), S_OK);
        EXPECT_EQ(point->Unadvise(cookie), S_OK);
    }
};

TEST_F(Quick, setsTheSiteAndAnswersTheStatus)
{
    ASSERT_EQ(activate(), S_OK);
    ComPtr<IOleClientSite> site;
    EXPECT_EQ(as<IOleObject>()->GetClientSite(site.put()), S_OK);
    EXPECT_EQ(site.get(), &control.site());
    DWORD status = 0;
    EXPECT_EQ(as<IOleObject>()->GetMiscStatus(DVASPECT_CONTENT, &status), S_OK);
    EXPECT_EQ(answer.dwMiscStatus, status);
    EXPECT_TRUE(answer.dwViewStatus & VIEWSTATUS_OPAQUE);
    EXPECT_EQ(answer.dwPointerActivationPolicy, 0U);
}

TEST_F(Quick, joinsTheSinksThatItIsGiven)
{
    auto const sinkFace = query<IUnknown>(events->unknown());
    container.pUnkEventSink = sinkFace.get();
    container.pPropertyNotifySink = changes.get();
    ASSERT_EQ(activate(), S_OK);
    EXPECT_NE(answer.dwEventCookie, 0U);
    EXPECT_NE(answer.dwPropNotifyCookie, 0U);
    ASSERT_EQ(control.initNew(), S_OK);
    ASSERT_EQ(control.activate(), S_OK);
    changes->take();
    events->forget();
    EXPECT_EQ(button()->put_BackColor(1), S_OK);
    EXPECT_EQ(events->count(kPaint), 1);
    EXPECT_THAT(changes->take(), testing::ElementsAre(id::BackColor));
    cut(kQvFlatCommandEvents, answer.dwEventCookie);
    cut(__uuidof(IPropertyNotifySink), answer.dwPropNotifyCookie);
}

TEST_F(Quick, takesTheAmbientValuesWhereTheSiteHasNone)
{
    control.site().hide(IID_IDispatch);
    auto const font = kit::newFont(L"Tahoma", 22);
    container.pFont = font.get();
    container.dwAmbientFlags = 0; // design mode
    ASSERT_EQ(activate(), S_OK);
    ASSERT_EQ(control.initNew(), S_OK);
    ASSERT_EQ(control.activate(), S_OK);
    kit::Connection const joined(control.object(), kQvFlatCommandEvents, events->unknown());
    repaint();
    EXPECT_EQ(events->count(kPaint), 0) << "it was told that the form is being designed";
    ComPtr<IFontDisp> own;
    ASSERT_EQ(button()->get_Font(own.put()), S_OK);
    EXPECT_EQ(kit::pointsOf(*query<IFont>(own.get()).get()), 22);
}

TEST_F(Quick, worksWithASiteAlone)
{
    ASSERT_EQ(activate(), S_OK);
    ASSERT_EQ(control.initNew(), S_OK);
    ASSERT_EQ(control.activate(), S_OK);
    EXPECT_TRUE(isShown());
}

TEST_F(Quick, refusesNothing)
{
    EXPECT_TRUE(FAILED(as<IQuickActivate>()->QuickActivate(nullptr, &answer)));
    EXPECT_TRUE(FAILED(as<IQuickActivate>()->QuickActivate(&container, nullptr)));
}

TEST_F(Quick, keepsTheContentExtent)
{
    SIZEL wanted{1234, 5678};
    EXPECT_EQ(as<IQuickActivate>()->SetContentExtent(&wanted), S_OK);
    SIZEL found{};
    EXPECT_EQ(as<IQuickActivate>()->GetContentExtent(&found), S_OK);
    EXPECT_EQ(found.cx, 1234);
    EXPECT_EQ(found.cy, 5678);
    EXPECT_TRUE(FAILED(as<IQuickActivate>()->SetContentExtent(nullptr)));
    EXPECT_TRUE(FAILED(as<IQuickActivate>()->GetContentExtent(nullptr)));
}

} // namespace
} // namespace quillet::hosting

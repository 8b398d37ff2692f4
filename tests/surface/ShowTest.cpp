// A button that appears, painted at once and whole in the end; a desktop whose colours change; right to left.
#include "SurfaceTest.h"
#include "kit/ByName.h"
#include "kit/Canvas.h"
#include "kit/Controls.h"
#include "kit/Pump.h"
#include "kit/SystemColours.h"

#include <memory>

namespace quillet::hosting {
namespace {

constexpr SIZE kSize{kPlace.right - kPlace.left, kPlace.bottom - kPlace.top};
constexpr COLORREF kFace = RGB(16, 160, 32);

/// A red window of its own, over or under a button.
UniqueWindow newPatch(HWND parent, RECT const& place, DWORD style)
{
    return UniqueWindow(::CreateWindowExW(WS_EX_TOOLWINDOW, L"STATIC", L"", style | WS_VISIBLE, place.left,
                                          place.top, place.right - place.left, place.bottom - place.top,
                                          parent, nullptr, nullptr, nullptr));
}

void setClipping(HWND window, bool clips)
{
    LONG const style = ::GetWindowLongW(window, GWL_STYLE);
    ::SetWindowLongW(window, GWL_STYLE, clips ? style | WS_CLIPCHILDREN : style & ~WS_CLIPCHILDREN);
}

void askForPaint(HWND window) { ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE); }

class Show : public SurfaceTest {
protected:
    ComPtr<kit::EventRecorder> events = kit::make<kit::EventRecorder>(kQvFlatCommandEvents);

    void SetUp() override
    {
        ASSERT_EQ(control.setSite(), S_OK);
        ASSERT_EQ(control.initNew(), S_OK);
        ComPtr<IConnectionPoint> point;
        as<IConnectionPointContainer>()->FindConnectionPoint(kQvFlatCommandEvents, point.put());
        DWORD cookie = 0;
        ASSERT_EQ(point->Advise(events->unknown(), &cookie), S_OK);
        ASSERT_EQ(button()->put_BackColor(kFace), S_OK);
        kit::pumpPending();
        events->forget();
    }

    void activate()
    {
        ASSERT_EQ(control.setExtent(), S_OK);
        ASSERT_EQ(control.activate(), S_OK);
    }
    int paints() const { return events->count(kPaint); }

    void expectWhole() const
    {
        kit::pumpPending();
        EXPECT_EQ(missing(), "");
    }
    /// What the window shows now differs from what painting it again shows: empty when it does not.
    std::string missing() const
    {
        kit::Canvas shown(kSize.cx, kSize.cy);
        kit::Canvas whole(kSize.cx, kSize.cy);
        kit::readWindow(ownWindow(), shown);
        EXPECT_GT(shown.count(kFace), 0) << "nothing of the button is there";
        repaint();
        kit::readWindow(ownWindow(), whole);
        return differences(whole, shown);
    }
};

TEST_F(Show, paintsAtOnceAndNotAgainForItsMessage)
{
    activate();
    EXPECT_EQ(paints(), 1) << "before any message was handled";
    kit::pumpPending();
    EXPECT_EQ(paints(), 1);
    EXPECT_EQ(missing(), "");
}

TEST_F(Show, paintsOnceEachTimeItAppears)
{
    activate();
    kit::pumpPending();
    ASSERT_EQ(control.doVerb(OLEIVERB_HIDE), S_OK);
    kit::pumpPending();
    events->forget();
    ASSERT_EQ(control.doVerb(OLEIVERB_SHOW), S_OK);
    kit::pumpPending();
    EXPECT_EQ(paints(), 1);
    EXPECT_EQ(missing(), "");
}

TEST_F(Show, whatASinkAsksForIsPaintedAllTheSame)
{
    events->action = [&](auto const& event) {
        if (event.id == kPaint && paints() == 1)
            ::InvalidateRect(ownWindow(), nullptr, FALSE);
    };
    activate();
    kit::pumpPending();
    EXPECT_EQ(paints(), 2);
}

TEST_F(Show, isWholeWhereTheFormPaintsItsBackgroundLater)
{
    setClipping(form.window(), false);
    askForPaint(form.window());
    activate();
    expectWhole();
}

TEST_F(Show, isWholeWhereTheFormIsAskedForItsBackgroundAfterwards)
{
    setClipping(form.window(), false);
    activate();
    askForPaint(form.window());
    expectWhole();
}

TEST_F(Show, isWholeWhereTheFormDrawsItsBackgroundWithoutBeingAsked)
{
    setClipping(form.window(), false);
    kit::pumpPending();
    activate();
    {
        RECT const all{0, 0, 400, 300};
        WindowDc const dc(form.window());
        ::FillRect(dc.get(), &all, static_cast<HBRUSH>(::GetStockObject(GRAY_BRUSH)));
    }
    expectWhole();
}

TEST_F(Show, isWholeWhereAWindowFurtherOutPaintsLater)
{
    kit::HostWindow const outer(40, 40, 400, 300);
    setClipping(outer.handle(), false);
    ::SetWindowLongW(form.window(), GWL_STYLE, static_cast<LONG>(WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN));
    ASSERT_NE(::SetParent(form.window(), outer.handle()), nullptr);
    ::SetWindowPos(form.window(), nullptr, 0, 0, 300, 200, SWP_NOZORDER | SWP_NOACTIVATE);
    kit::pumpPending();
    askForPaint(outer.handle());
    activate();
    expectWhole();
    control.remove();
    ::SetParent(form.window(), nullptr);
}

TEST_F(Show, isWholeWhenASiblingThatCoveredItGoes)
{
    RECT const half{kPlace.left, kPlace.top, kPlace.left + kSize.cx / 2, kPlace.bottom};
    UniqueWindow patch = newPatch(form.window(), half, WS_CHILD | WS_CLIPSIBLINGS);
    kit::pumpPending();
    activate();
    ASSERT_EQ(::GetWindow(ownWindow(), GW_HWNDPREV), patch.get()) << "the sibling does not cover it";
    patch.reset(); // before any message was handled
    expectWhole();
}

TEST_F(Show, isWholeWhenAWindowOverItsFormGoes)
{
    RECT over{};
    ::GetWindowRect(form.window(), &over);
    over.right = over.left + kPlace.left + kSize.cx / 2;
    UniqueWindow patch = newPatch(nullptr, over, WS_POPUP);
    ::SetWindowPos(patch.get(), HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    kit::pumpPending();
    activate();
    patch.reset();
    expectWhole();
}

TEST_F(Show, isWholeWhenItsClipGrows)
{
    control.site().clip = {kPlace.left, kPlace.top, kPlace.left + kSize.cx / 2, kPlace.bottom};
    activate();
    EXPECT_EQ(as<IOleInPlaceObject>()->SetObjectRects(&kPlace, &kPlace), S_OK);
    expectWhole();
}

TEST_F(Show, isWholeWhenItAppearsBeforeItsForm)
{
    ::ShowWindow(form.window(), SW_HIDE);
    activate();
    ::ShowWindow(form.window(), SW_SHOWNOACTIVATE);
    expectWhole();
}

constexpr COLORREF kOddFace = RGB(3, 201, 99);
constexpr COLORREF kOddText = RGB(151, 3, 77);

/// The desktop's colours of faces and of texts on them.
struct OddScheme : kit::SystemColours {
    OddScheme() : SystemColours({COLOR_BTNFACE, COLOR_BTNTEXT}, {kOddFace, kOddText}) {}
};

class Schemes : public kit::ControlTest, public testing::WithParamInterface<kit::ControlKind> {
protected:
    static constexpr int kWidth = kPlace.right - kPlace.left;
    static constexpr int kHeight = kPlace.bottom - kPlace.top;
    kit::FakeForm form;
    kit::Canvas picture{kWidth, kHeight};

    static void put(kit::Hosted& control, wchar_t const* name, Variant const& value)
    {
        auto const dispatch = control.as<IDispatch>();
        ASSERT_EQ(kit::putByName(*dispatch.get(), name, value).result, S_OK) << name;
    }
    /// Text on a face, both of the desktop's colours.
    void start(kit::Hosted& control, wchar_t const* caption = L"E")
    {
        control.start();
        put(control, L"Caption", Variant::ofString(caption));
        put(control, L"BackColor", Variant::ofLong(static_cast<long>(0x8000000F)));
        put(control, L"ForeColor", Variant::ofLong(static_cast<long>(0x80000012)));
        repaint(control);
    }
    /// As desktops ask for it.
    void repaint(kit::Hosted& control)
    {
        ::RedrawWindow(form.window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
        kit::pumpPending();
        kit::readWindow(control.window(), picture);
    }
};

TEST_P(Schemes, aChangeOfTheDesktopsColoursShowsAtOnce)
{
    kit::Hosted control(library(), GetParam().classId, form, kPlace);
    start(control);
    ASSERT_EQ(picture.count(kOddFace), 0);
    ASSERT_EQ(picture.count(kOddText), 0);
    {
        OddScheme const scheme;
        repaint(control);
        EXPECT_GT(picture.count(kOddFace), kWidth * kHeight / 2);
        EXPECT_GT(picture.count(kOddText), 0);
    }
    repaint(control);
    EXPECT_EQ(picture.count(kOddFace), 0) << "nothing of the other scheme stays";
    EXPECT_EQ(picture.count(kOddText), 0);
}

// Controls have no layout from right to left: what is drawn in them must not be mirrored by the form's.
TEST_P(Schemes, inAFormFromRightToLeftThePictureIsTheSame)
{
    kit::Canvas plain(kWidth, kHeight);
    {
        kit::Hosted control(library(), GetParam().classId, form, kPlace);
        start(control, L"Left");
        kit::readWindow(control.window(), plain);
    }
    ::SetWindowLongW(form.window(), GWL_EXSTYLE,
                     ::GetWindowLongW(form.window(), GWL_EXSTYLE) | WS_EX_LAYOUTRTL);
    kit::Hosted control(library(), GetParam().classId, form, kPlace);
    start(control, L"Left");
    EXPECT_EQ(differences(plain, picture), "");
}

QV_EACH_CONTROL(Of, Schemes);

} // namespace
} // namespace quillet::hosting

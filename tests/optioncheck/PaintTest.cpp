// The steps of a paint: what each state shows, and what runs in between. Many paints and lives leave nothing
// behind: no window, no handle, no memory.
#include "Box.h"
#include "kit/UiThread.h"
#include "kit/Usage.h"

namespace quillet::box {
namespace {

COLORREF shadow() { return ::GetSysColor(COLOR_BTNSHADOW); }

class Paint : public EachBoxTest {
protected:
    Box box{kind(), library(), form};

    Paint() { box.start(*newBag({{L"BackColor", Variant::ofLong(RGB(250, 240, 230))}}).get()); }

    void disable(COLORREF hot)
    {
        box.setColours(kFore, hot);
        box.disable();
    }
    void expectGlyph(COLORREF color) const { EXPECT_EQ(box.pixel(kInGlyph), color); }
    void repaint() const
    {
        ::InvalidateRect(box.inner(), nullptr, TRUE);
        ::UpdateWindow(box.inner());
    }
    static COLORREF drawnGlyph(kit::Canvas const& drawn) { return drawn.at(kInGlyph.x, kInGlyph.y); }
};

TEST_P(Paint, ofADisabledOneShowsAShadowedCaptionAndAGreyGlyph)
{
    disable(kHot);
    box.expectCaption(shadow(), kFore);
    expectGlyph(kLightGrey);
    box.put(L"Enabled", true);
    EXPECT_TRUE(box.captionHas(kFore));
    expectGlyph(kWhite);
}

TEST_P(Paint, ofADisabledOneLooksTheSameUnderTheMouse)
{
    disable(kHot);
    box.moveTo(kInside);
    kit::pumpPending();
    box.refresh();
    box.expectCaption(shadow(), kHot);
}

TEST_P(Paint, ofADisabledOneLetsWaitingMessagesRun)
{
    int handled = 0;
    PostedCall const call([&] { ++handled; });
    call.post();
    box.refresh();
    EXPECT_EQ(handled, 0); // an enabled one lets nothing run
    box.disable();
    EXPECT_EQ(handled, 1);
    call.post();
    box.refresh();
    EXPECT_EQ(handled, 2);
}

TEST_P(Paint, ofADisabledOneLeavesKeysToTheHostsLoop)
{
    auto const edit = kit::newEditBox(form.window(), {200, 30, 260, 50});
    ASSERT_TRUE(kit::focus(edit.get()));
    kit::pumpPending();
    kit::typeKey(VK_F2);
    box.disable();
    bool seen = false;
    for (ULONGLONG const end = ::GetTickCount64() + kit::kPumpLimit; !seen && ::GetTickCount64() < end;) {
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
        MSG message;
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
            seen = seen || (message.message == WM_KEYDOWN && message.wParam == VK_F2);
    }
    EXPECT_TRUE(seen);
}

TEST_P(Paint, ofADisabledOneLeavesTheEndOfTheLoopToItsOwner)
{
    ::PostQuitMessage(7);
    box.disable();
    MSG message;
    ASSERT_TRUE(::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 7U);
}

TEST_P(Paint, endsWhereAMessageEnablesTheBoxAgain)
{
    box.setColours(kFore, kFore);
    PostedCall const enable([&] { box.put(L"Enabled", true); });
    enable.post();
    box.disable();
    expectGlyph(kWhite);
    EXPECT_TRUE(box.captionHas(kFore));
}

TEST_P(Paint, afterTheSystemAskedForItShowsTheSame)
{
    disable(kFore);
    repaint();
    expectGlyph(kLightGrey);
    EXPECT_TRUE(box.captionHas(shadow()));
}

TEST_P(Paint, ofAHotOneWithItsOwnColourColoursTheCaption)
{
    box.setColours(kFore, kHot);
    box.enter();
    repaint();
    EXPECT_TRUE(box.captionHas(kHot));
    box.put(L"HotForeColor", RGB(0, 0, 255)); // paints at once
    EXPECT_TRUE(box.captionHas(RGB(0, 0, 255)));
    box.put(L"HotForeColor", kFore);
    EXPECT_TRUE(box.captionHas(kFore));
    expectGlyph(kLightGrey);
}

TEST_P(Paint, clearsAShadedGlyphWithTheNextCaption)
{
    box.setColours(kFore, kFore);
    box.enter();
    expectGlyph(kLightGrey);
    box.put(L"ForeColor", RGB(9, 9, 9));
    box.leave(); // the caption changes back, and the glyph is painted with it
    expectGlyph(kWhite);
}

TEST_P(Paint, shadesNothingAtDesignTime)
{
    Box designed(kind(), library(), form, kPlaceBelow, L"Designed", Mode::Design);
    designed.start();
    designed.setColours(kFore, kHot);
    designed.disable();
    EXPECT_TRUE(designed.captionHas(shadow()));
    EXPECT_EQ(designed.pixel(kInGlyph), kWhite);
    kit::Canvas drawn(120, 20);
    designed.hosted().draw(drawn);
    EXPECT_EQ(drawnGlyph(drawn), kWhite);
}

TEST_P(Paint, ofAnInactiveOneIsDisabledInAPictureToo)
{
    disable(kFore);
    kit::Canvas drawn(120, 20);
    box.hosted().draw(drawn);
    EXPECT_EQ(drawnGlyph(drawn), kLightGrey);
    EXPECT_GT(drawn.count(shadow()), 0);
    EXPECT_EQ(drawn.count(kFore), 0);
}

TEST_P(Paint, ofManyDisabledOnesDoesNotNest)
{
    std::vector<std::unique_ptr<Box>> many;
    for (int i = 0; i < 60; ++i) {
        many.push_back(
            std::make_unique<Box>(kind(), library(), form,
                                  RECT{5 + i % 5 * 75, 60 + i / 5 * 18, 75 + i % 5 * 75, 76 + i / 5 * 18}));
        many.back()->start();
    }
    for (auto const& each : many) {
        each->disable();
        ::InvalidateRect(each->outer(), nullptr, FALSE);
        ::InvalidateRect(each->inner(), nullptr, FALSE);
    }
    kit::pumpPending();
    for (auto const& each : many) // 16 pixels high: the fill begins in row 6
        EXPECT_EQ(each->pixel({4, 6}), kLightGrey);
}

QV_EACH_BOX(Paint);

constexpr int kFills = 3000;
constexpr int kWarmUp = 20; // until caches of the system's have what they keep

using Soak = EachBoxTest;

/// The fill never gives its device context back. As the window owns its one, that costs nothing.
TEST_P(Soak, ofThreeThousandFillsLosesNoDeviceContext)
{
    Box box(kind(), library(), form);
    box.start();
    HDC const own = ::GetDC(box.inner());
    for (int i = 0; i < kWarmUp; ++i)
        box.refresh();
    int const before = kit::Usage::now().gdi;
    for (int i = 0; i < kFills; ++i)
        box.refresh();
    EXPECT_LE(kit::Usage::now().gdi, before + 20);
    EXPECT_EQ(::GetDC(box.inner()), own);
}

TEST_P(Soak, ofThreeHundredLivesLeavesNothingBehind)
{
    kit::onNewThread([this] {
        kit::FakeForm own;
        kit::expectNothingIsLeft(300, [&](int) {
            Box box(kind(), library(), own);
            box.start();
            box.setValue(1);
            box.disable();
            box.remove();
            own.record().forget();
        });
    });
}

QV_EACH_BOX(Soak);

} // namespace
} // namespace quillet::box

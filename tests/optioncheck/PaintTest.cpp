// The steps of a paint: what each state shows, and what runs in between.
#include "Box.h"

#include <ole2.h>

namespace quillet::box {
namespace {

COLORREF shadow() { return ::GetSysColor(COLOR_BTNSHADOW); }

class Paint : public EachBoxTest {
protected:
    Paint() : box(kind(), library(), form)
    {
        auto const bag = newBag();
        bag->put(L"BackColor", Variant::ofLong(RGB(250, 240, 230)));
        box.start(*bag.get());
    }

    static void draw(Box& drawn, kit::Canvas& on)
    {
        RECTL const bounds = {0, 0, 120, 20};
        EXPECT_EQ(drawn.as<IViewObject>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, on.dc(),
                                                &bounds, nullptr, nullptr, 0),
                  S_OK);
    }

    Box box;
};

TEST_P(Paint, ofADisabledOneShowsAShadowedCaptionAndAGreyGlyph)
{
    box.setColours(kFore, kHot);
    box.put(L"Enabled", Variant::ofBool(false));
    EXPECT_TRUE(box.captionHas(shadow()));
    EXPECT_FALSE(box.captionHas(kFore));
    EXPECT_EQ(box.pixel(kInGlyph), kLightGrey);
    box.put(L"Enabled", Variant::ofBool(true));
    EXPECT_TRUE(box.captionHas(kFore));
    EXPECT_EQ(box.pixel(kInGlyph), kWhite);
}

TEST_P(Paint, ofADisabledOneLooksTheSameUnderTheMouse)
{
    box.setColours(kFore, kHot);
    box.put(L"Enabled", Variant::ofBool(false));
    box.moveTo(kInside);
    kit::pumpPending();
    kit::callByName(box.dispatch(), L"Refresh");
    EXPECT_TRUE(box.captionHas(shadow()));
    EXPECT_FALSE(box.captionHas(kHot));
}

TEST_P(Paint, ofADisabledOneLetsWaitingMessagesRun)
{
    struct Answer {
        static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
        {
            if (message == WM_APP)
                ::SetWindowLongPtrW(window, GWLP_USERDATA, static_cast<LONG_PTR>(wParam));
            return ::DefWindowProcW(window, message, wParam, lParam);
        }
    };
    UniqueWindow const other(
        ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr));
    ::SetWindowLongPtrW(other.get(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Answer::procedure));
    ::PostMessageW(other.get(), WM_APP, 42, 0);
    kit::callByName(box.dispatch(), L"Refresh");
    EXPECT_EQ(::GetWindowLongPtrW(other.get(), GWLP_USERDATA), 0); // an enabled one lets nothing run
    box.put(L"Enabled", Variant::ofBool(false));
    EXPECT_EQ(::GetWindowLongPtrW(other.get(), GWLP_USERDATA), 42);
    ::PostMessageW(other.get(), WM_APP, 43, 0);
    kit::callByName(box.dispatch(), L"Refresh");
    EXPECT_EQ(::GetWindowLongPtrW(other.get(), GWLP_USERDATA), 43);
}

TEST_P(Paint, ofADisabledOneLeavesKeysToTheHostsLoop)
{
    auto const edit = kit::newEditBox(form.window(), {200, 30, 260, 50});
    ASSERT_TRUE(kit::focus(edit.get()));
    kit::pumpPending();
    kit::typeKey(VK_F2);
    box.put(L"Enabled", Variant::ofBool(false));
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
    box.put(L"Enabled", Variant::ofBool(false));
    MSG message;
    ASSERT_TRUE(::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 7U);
}

TEST_P(Paint, endsWhereAMessageEnablesTheBoxAgain)
{
    box.setColours(kFore, kFore);
    struct Enabler {
        static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
        {
            if (message == WM_APP)
                reinterpret_cast<Box*>(lParam)->put(L"Enabled", Variant::ofBool(true));
            return ::DefWindowProcW(window, message, wParam, lParam);
        }
    };
    UniqueWindow const other(
        ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr));
    ::SetWindowLongPtrW(other.get(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Enabler::procedure));
    ::PostMessageW(other.get(), WM_APP, 0, reinterpret_cast<LPARAM>(&box));
    box.put(L"Enabled", Variant::ofBool(false));
    EXPECT_EQ(box.pixel(kInGlyph), kWhite);
    EXPECT_TRUE(box.captionHas(kFore));
}

TEST_P(Paint, afterTheSystemAskedForItShowsTheSame)
{
    box.setColours(kFore, kFore);
    box.put(L"Enabled", Variant::ofBool(false));
    ::InvalidateRect(box.inner(), nullptr, TRUE);
    ::UpdateWindow(box.inner());
    EXPECT_EQ(box.pixel(kInGlyph), kLightGrey);
    EXPECT_TRUE(box.captionHas(shadow()));
}

TEST_P(Paint, ofAHotOneWithItsOwnColourColoursTheCaption)
{
    box.setColours(kFore, kHot);
    box.enter();
    ::InvalidateRect(box.inner(), nullptr, TRUE);
    ::UpdateWindow(box.inner());
    EXPECT_TRUE(box.captionHas(kHot));
    box.put(L"HotForeColor", Variant::ofLong(RGB(0, 0, 255))); // paints at once
    EXPECT_TRUE(box.captionHas(RGB(0, 0, 255)));
    box.put(L"HotForeColor", Variant::ofLong(static_cast<long>(kFore)));
    EXPECT_TRUE(box.captionHas(kFore));
    EXPECT_EQ(box.pixel(kInGlyph), kLightGrey);
}

TEST_P(Paint, clearsAShadedGlyphWithTheNextCaption)
{
    box.setColours(kFore, kFore);
    box.enter();
    EXPECT_EQ(box.pixel(kInGlyph), kLightGrey);
    box.put(L"ForeColor", Variant::ofLong(RGB(9, 9, 9)));
    box.leave(); // the caption changes back, and the glyph is painted with it
    EXPECT_EQ(box.pixel(kInGlyph), kWhite);
}

TEST_P(Paint, shadesNothingAtDesignTime)
{
    Box designed(kind(), library(), form, {20, 80, 140, 100}, L"Designed", Mode::Design);
    designed.start();
    designed.setColours(kFore, kHot);
    designed.put(L"Enabled", Variant::ofBool(false));
    EXPECT_TRUE(designed.captionHas(shadow()));
    EXPECT_EQ(designed.pixel(kInGlyph), kWhite);
    kit::Canvas drawn(120, 20);
    draw(designed, drawn);
    EXPECT_EQ(drawn.at(kInGlyph.x, kInGlyph.y), kWhite);
}

TEST_P(Paint, ofAnInactiveOneIsDisabledInAPictureToo)
{
    box.setColours(kFore, kFore);
    box.put(L"Enabled", Variant::ofBool(false));
    kit::Canvas drawn(120, 20);
    draw(box, drawn);
    EXPECT_EQ(drawn.at(kInGlyph.x, kInGlyph.y), kLightGrey);
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
        each->put(L"Enabled", Variant::ofBool(false));
        ::InvalidateRect(each->outer(), nullptr, FALSE);
        ::InvalidateRect(each->inner(), nullptr, FALSE);
    }
    kit::pumpPending();
    for (auto const& each : many) // 16 pixels high: the fill begins in row 6
        EXPECT_EQ(each->pixel({4, 6}), kLightGrey);
}

QV_EACH_BOX(Paint);

} // namespace
} // namespace quillet::box

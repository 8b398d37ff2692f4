// A paint of qvFlatCommand: the Paint event, what brings it about, and what one paint asks GDI for.
#include "FlatButton.h"
#include "drawing/GdiCalls.h"

namespace quillet::flat {
namespace {

class FlatPaint : public ShownTest {
protected:
    FlatPaint() { button.forget(); }
};

TEST_F(FlatPaint, isRaisedOnceByRefreshAndNotByDrawButton)
{
    EXPECT_EQ(button->Refresh(), S_OK);
    EXPECT_EQ(button.paints(), 1);
    EXPECT_EQ(button->DrawButton(), S_OK);
    EXPECT_EQ(button.paints(), 1);
}

TEST_F(FlatPaint, isRaisedWhenTheWindowIsExposed)
{
    ::InvalidateRect(button.window(), nullptr, TRUE);
    ::UpdateWindow(button.window());
    EXPECT_EQ(button.paints(), 1);
}

TEST_F(FlatPaint, isRaisedAtOnceWhenTheButtonIsShownAgain)
{
    EXPECT_EQ(button.doVerb(OLEIVERB_HIDE), S_OK);
    kit::pumpPending();
    button.events().forget();
    EXPECT_EQ(button.doVerb(OLEIVERB_SHOW), S_OK);
    EXPECT_GE(button.paints(), 1) << "before any message was handled";
}

TEST_F(FlatPaint, isRaisedAfterThePictureIsComplete)
{
    std::string found = "no event";
    kit::Inside const paint(button, "Paint", [&] {
        Look look = normalLook(L"Seen");
        look.back = RGB(7, 8, 9);
        found = button.differencesFrom(look);
    });
    EXPECT_EQ(button->put_BackColor(RGB(7, 8, 9)), S_OK);
    button.setCaption(L"Seen");
    EXPECT_EQ(found, "");
}

TEST_F(FlatPaint, comesWithoutArguments)
{
    EXPECT_EQ(button->Refresh(), S_OK);
    ASSERT_EQ(button.paints(), 1);
    EXPECT_TRUE(button.events().events.front().values.empty());
}

TEST_F(FlatPaint, putsBackWhatAnotherWindowPaintedOver)
{
    button.setCaption(L"&Back");
    {
        WindowDc const dc(button.window());
        RECT const all{0, 0, 500, 500};
        ::FillRect(dc.get(), &all, static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH)));
    }
    ::InvalidateRect(button.window(), nullptr, FALSE);
    kit::pumpPending();
    EXPECT_EQ(button.differencesFrom(normalLook(L"&Back")), "");
}

TEST_F(FlatPaint, fillsANewSizeToItsEdges)
{
    button.place({10, 10, 210, 110});
    kit::pumpPending();
    EXPECT_EQ(button.size().cx, 200);
    EXPECT_EQ(button.size().cy, 100);
    EXPECT_EQ(button.differencesFrom(normalLook()), "");
}

TEST_F(FlatPaint, ofAButtonWithoutAnyPixelsIsHarmless)
{
    button.place({10, 10, 10, 10});
    EXPECT_EQ(button->Refresh(), S_OK);
    EXPECT_EQ(button->DrawButton(), S_OK);
}

TEST_F(FlatPaint, mousePointerAndMouseIconChangesDoNotRepaintTheButton)
{
    EXPECT_EQ(button->put_MousePointer(11), S_OK);
    EXPECT_EQ(button->putref_MouseIcon(kit::newIconPicture().get()), S_OK);
    EXPECT_EQ(button->put_MousePointer(99), S_OK);
    kit::pumpPending();
    EXPECT_EQ(button.paints(), 0);
}

TEST_F(FlatPaint, mayAssignAPropertyAgainWithoutHangingUp)
{
    int rounds = 0;
    kit::Inside const paint(button, "Paint", [&] {
        if (++rounds < 4)
            button->put_BackColor(static_cast<OLE_COLOR>(rounds));
    });
    EXPECT_EQ(button->Refresh(), S_OK);
    EXPECT_EQ(rounds, 4);
    Look look = normalLook();
    look.back = 3;
    EXPECT_EQ(button.differencesFrom(look), "");
}

TEST_F(FlatPaint, isNotRaisedAtDesignTime)
{
    button.setUserMode(false);
    button.events().forget();
    EXPECT_EQ(button->Refresh(), S_OK);
    ::InvalidateRect(button.window(), nullptr, TRUE);
    kit::pumpPending();
    EXPECT_TRUE(button.events().ids().empty());
    EXPECT_EQ(button.differencesFrom(normalLook()), "");
}

using Calls = std::vector<std::string>;

/// A running button of 120 by 40 pixels.
class FlatPaintCalls : public ShownTest {
protected:
    Look look = lookOf(kFore, kBack, kBorder, L"Sa&ve");

    FlatPaintCalls()
    {
        button.setColors();
        button.setCaption(L"Sa&ve");
    }
    /// What the component asks GDI for while it draws.
    Calls drawnBy(void (*draw)(FlatButton&))
    {
        auto record = std::make_shared<kit::Record>();
        GdiCalls const watch(record, library().module());
        draw(button);
        return record->take();
    }
    static void drawButton(FlatButton& drawn) { EXPECT_EQ(drawn->DrawButton(), S_OK); }
    /// One DrawButton makes a surface, draws on nothing else, copies it once and frees it; then the window
    /// shows the face. The window's DC is only borrowed.
    void expectComposed()
    {
        Calls calls = drawnBy(drawButton);
        EXPECT_EQ(std::ranges::count(calls, "DeleteDC dc1"), 1);
        std::erase_if(calls, [](std::string const& call) {
            return call.starts_with("ReleaseDC") || call.substr(call.find(' ')).starts_with(" dc1");
        });
        EXPECT_THAT(calls, testing::ElementsAreArray(
                               {"CreateCompatibleDC ? -> dc1", "CreateCompatibleBitmap ? 120 40 -> bitmap1",
                                "BitBlt ? 0 0 120 40 dc1 0 0 cc0020", "DeleteObject bitmap1"}));
        EXPECT_EQ(button.differencesFrom(look), "");
    }
};

TEST_F(FlatPaintCalls, atRestAreBorderFaceAndCaptionOnTheSurfaceAndOneCopy) { expectComposed(); }

TEST_F(FlatPaintCalls, withTheFocusHaveTheFrameBetweenFaceAndCaptionWhichDoesNotMove)
{
    ASSERT_TRUE(kit::focus(button.window()));
    look = focused(look);
    expectComposed();
}

TEST_F(FlatPaintCalls, withoutABorderBeginWithTheLook)
{
    EXPECT_EQ(button->put_BorderStyle(pdsButtonBorderStyleConstants::None), S_OK);
    button.setCaption(L"Plain");
    look.bordered = false;
    look.caption = L"Plain";
    expectComposed();
}

TEST_F(FlatPaintCalls, ofAnExposedWindowAreTheSame)
{
    Calls const exposed = drawnBy([](FlatButton& each) {
        ::InvalidateRect(each.window(), nullptr, TRUE);
        ::UpdateWindow(each.window());
    });
    EXPECT_EQ(exposed, drawnBy(drawButton));
}

} // namespace
} // namespace quillet::flat

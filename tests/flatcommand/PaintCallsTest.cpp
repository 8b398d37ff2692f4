// What one paint of qvFlatCommand asks GDI for: everything on one surface, and one copy to the screen.
#include "ShownButton.h"
#include "drawing/GdiCalls.h"
#include "kit/Input.h"

namespace quillet::flat {
namespace {

using Calls = std::vector<std::string>;

/// A running button of 120 by 40 pixels.
class FlatPaintCalls : public FlatTest {
protected:
    kit::FakeForm form;
    ShownButton button{library(), form};
    Face face{kFore, kBack, kBorder};

    void SetUp() override
    {
        FlatTest::SetUp();
        button.setColors();
        button.setCaption(L"Sa&ve");
        face.caption = L"Sa&ve";
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
        EXPECT_THAT(calls, testing::ElementsAre(
                               "CreateCompatibleDC ? -> dc1", "CreateCompatibleBitmap ? 120 40 -> bitmap1",
                               "BitBlt ? 0 0 120 40 dc1 0 0 cc0020", "DeleteObject bitmap1"));
        EXPECT_EQ(button.differencesFrom(face), "");
    }
};

TEST_F(FlatPaintCalls, atRestAreBorderFaceAndCaptionOnTheSurfaceAndOneCopy) { expectComposed(); }

TEST_F(FlatPaintCalls, withTheFocusHaveTheFrameBetweenFaceAndCaptionWhichDoesNotMove)
{
    ASSERT_TRUE(kit::focus(button.window()));
    face.emphasis = 1;
    face.frame = 0x808080;
    expectComposed();
}

TEST_F(FlatPaintCalls, withoutABorderBeginWithTheFace)
{
    EXPECT_EQ(button->put_BorderStyle(pdsButtonBorderStyleConstants::None), S_OK);
    button.setCaption(L"Plain");
    face.bordered = false;
    face.caption = L"Plain";
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

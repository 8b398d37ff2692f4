// The GDI calls of one paint of qvFlatCommand: all on one surface, in order, and one copy to the screen.
#include "ShownButton.h"
#include "drawing/GdiCalls.h"
#include "kit/Fonts.h"
#include "kit/Input.h"
#include "kit/Painter.h"

#include <cmath>

namespace quillet::flat {
namespace {

using Calls = std::vector<std::string>;

/// A running button of 120 by 40 pixels whose colours tell what was drawn with them.
class FlatPaintCalls : public FlatTest {
protected:
    kit::FakeForm form;
    ShownButton button{library(), form};
    std::wstring const before = L"Sa";
    std::wstring const key = L"v";
    std::wstring const after = L"e";

    void SetUp() override
    {
        FlatTest::SetUp();
        button->put_ForeColor(0x0F0F0F);
        button->put_BackColor(0xBBBBBB);
        button->put_BorderColor(0x0B0B0B);
        button.setCaption((before + L"&" + key + after).c_str());
    }
    /// What the component asks GDI for while it draws.
    kit::SharedRecord drawnBy(void (*draw)(FlatButton&))
    {
        auto record = std::make_shared<kit::Record>();
        GdiCalls const watch(record, library().module());
        draw(button);
        return record;
    }
    /// The calls of one DrawButton that make, draw, copy and free. Which font is selected when is told by the
    /// picture, and the window's DC is only borrowed.
    Calls ofDrawButton()
    {
        Calls calls = drawnBy([](FlatButton& drawn) { drawn->DrawButton(); })->take();
        std::erase_if(calls, [](std::string const& call) {
            return call.starts_with("SelectObject") || call.starts_with("ReleaseDC");
        });
        return calls;
    }
    SIZE sizeOf(std::wstring const& text) { return kit::textSize(kit::handleOf(*button.font().get()), text); }
    /// Halfway down, halves of a pixel to the even one.
    long topOf(std::wstring const& text)
    {
        return static_cast<long>(std::nearbyint(40 / 2.0 - sizeOf(text).cy / 2.0));
    }

    /// The background colour and one opaque text.
    static void appendFill(Calls& calls, char const* colour, RECT const& box, POINT at = {},
                           std::wstring const& text = {})
    {
        auto const number = [](long value) { return std::to_string(value); };
        calls.push_back(std::string("SetBkColor dc1 ") + colour);
        calls.push_back("ExtTextOutA dc1 " + number(at.x) + ' ' + number(at.y) + " 6 (" + number(box.left) +
                        ',' + number(box.top) + ',' + number(box.right) + ',' + number(box.bottom) + ") '" +
                        kit::narrow(text) + "' " + number(static_cast<long>(text.size())) + " none");
    }
    static Calls beginning()
    {
        return {"CreateCompatibleDC ? -> dc1", "CreateCompatibleBitmap ? 120 40 -> bitmap1"};
    }
    static void appendEnd(Calls& calls)
    {
        Calls const end = {"BitBlt ? 0 0 120 40 dc1 0 0 cc0020", "DeleteObject bitmap1", "DeleteDC dc1"};
        calls.insert(calls.end(), end.begin(), end.end());
    }
    /// The three pieces from a column on: each box reaches to the same right end.
    void appendCaption(Calls& calls, char const* back, long left, RECT box)
    {
        long const top = topOf(before + key + after);
        for (std::wstring const& piece : {before, key, after}) {
            box.left = left;
            appendFill(calls, back, box, {left, top}, piece);
            left += sizeOf(piece).cx;
        }
    }
};

TEST_F(FlatPaintCalls, atRestAreBorderFaceAndCaptionOnTheSurfaceAndOneCopy)
{
    Calls expected = beginning();
    appendFill(expected, "0b0b0b", {0, 0, 120, 40});
    expected.emplace_back("SetTextColor dc1 0f0f0f");
    appendFill(expected, "bbbbbb", {1, 1, 119, 39});
    appendCaption(expected, "bbbbbb", 1 + 4, {0, 2, 118, 38});
    appendEnd(expected);
    EXPECT_EQ(ofDrawButton(), expected);
}

TEST_F(FlatPaintCalls, withTheFocusHaveTheFrameBetweenFaceAndCaptionWhichDoesNotMove)
{
    ASSERT_TRUE(kit::focus(button.window()));
    Calls expected = beginning();
    appendFill(expected, "0b0b0b", {0, 0, 120, 40});
    expected.emplace_back("SetTextColor dc1 0f0f0f");
    appendFill(expected, "bbbbbb", {2, 2, 118, 38});
    appendFill(expected, "808080", {4, 4, 116, 36});
    appendFill(expected, "bbbbbb", {5, 5, 115, 35});
    appendCaption(expected, "bbbbbb", 1 + 4, {0, 5, 115, 35});
    appendEnd(expected);
    EXPECT_EQ(ofDrawButton(), expected);
}

TEST_F(FlatPaintCalls, withoutABorderBeginWithTheFace)
{
    EXPECT_EQ(button->put_BorderStyle(pdsButtonBorderStyleConstants::None), S_OK);
    button.setCaption(L"Plain");
    Calls expected = beginning();
    expected.emplace_back("SetTextColor dc1 0f0f0f");
    appendFill(expected, "bbbbbb", {0, 0, 120, 40});
    appendFill(expected, "bbbbbb", {4, 1, 119, 39}, {4, topOf(L"Plain")}, L"Plain");
    appendEnd(expected);
    EXPECT_EQ(ofDrawButton(), expected);
}

TEST_F(FlatPaintCalls, ofAnExposedWindowAreTheSame)
{
    auto const drawn = drawnBy([](FlatButton& each) { each->DrawButton(); });
    auto const exposed = drawnBy([](FlatButton& each) {
        ::InvalidateRect(each.window(), nullptr, TRUE);
        ::UpdateWindow(each.window());
    });
    EXPECT_EQ(exposed->take(), drawn->take());
}

} // namespace
} // namespace quillet::flat

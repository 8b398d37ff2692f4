// The real pointer over the button: hot or not, and what is asked of where it is.
#include "Button.h"
#include "drawing/ImportTable.h"
#include "kit/NotCopied.h"
#include "kit/Pump.h"

#include <cstring>

namespace quillet::input {
namespace {

using testing::Contains;
using testing::ElementsAreArray;
using testing::IsEmpty;

constexpr RECT kNeighbour{140, 30, 260, 70}; // touches the first button's right edge
constexpr RECT kBelow{20, 180, 140, 220};

class Hover : public FormTest {
protected:
    FormButton neighbour{library(), form, kNeighbour, L"Button2"};
    Names told; ///< the events of both but Paint and MouseMove, as "1.Click"

    void SetUp() override
    {
        FormTest::SetUp();
        button.start();
        neighbour.start();
        ASSERT_TRUE(kit::focus(button.window()));
        kit::pumpPending();
        tell(button, "1.");
        tell(neighbour, "2.");
    }
    void TearDown() override
    {
        kit::release(kit::MouseButton::Left);
        neighbour.events().action = nullptr;
        FormTest::TearDown();
    }
    void tell(FormButton& who, std::string const& prefix)
    {
        who.events().action = [this, &who, prefix](kit::EventRecorder::Event const&) {
            std::string const name = who.lastEvent();
            if (name != "Paint" && name != "MouseMove")
                told.push_back(prefix + name);
        };
    }
    /// Moves on over the neighbour until the system has noticed whose the mouse is now.
    bool moveOverNeighbourUntil(char const* event)
    {
        int x = 20;
        return kit::pumpUntil([&] {
            kit::moveCursorTo(neighbour.window(), x = x == 20 ? 25 : 20, 20);
            return neighbour.count(event) > 0;
        });
    }
    /// What the button shows when it is put there and painted.
    std::string lookAt(RECT const& place)
    {
        button.hosted().ask(&IOleInPlaceObject::SetObjectRects, &place, &place);
        EXPECT_EQ(button->Refresh(), S_OK);
        return button.look();
    }
    std::wstring toolTipText() const
    {
        Bstr text;
        EXPECT_EQ(button->get_ToolTipText(text.put()), S_OK);
        return std::wstring(text.view());
    }
};

TEST_F(Hover, fromOneButtonToItsNeighbourLeavesTheOneBeforeItEntersTheOther)
{
    enter(button);
    EXPECT_TRUE(moveOverNeighbourUntil("MouseEnter"));
    EXPECT_THAT(told, ElementsAreArray({"1.MouseEnter", "1.MouseExit", "2.MouseEnter"}));
    EXPECT_EQ(button.look(), "normal");
    EXPECT_EQ(neighbour.look(), "hot");
    EXPECT_EQ(::GetCapture(), neighbour.window());
}

TEST_F(Hover, draggedFromOneButtonToItsNeighbourAndLetGoThereIsNobodysClick)
{
    enterAndPress(button);
    EXPECT_THAT(button.during([&] { kit::moveCursorTo(neighbour.window(), 30, 20); }, "MouseMove"),
                ElementsAreArray({"Paint", "MouseMove"}));
    EXPECT_EQ(neighbour.look(), "normal");
    letUp(button);
    EXPECT_TRUE(moveOverNeighbourUntil("MouseEnter"));
    EXPECT_THAT(
        told, ElementsAreArray({"1.MouseEnter", "1.MouseDown", "1.MouseUp", "1.MouseExit", "2.MouseEnter"}));
}

TEST_F(Hover, whoseCaptureSomebodyTookBeginsAgainAtTheNextMoveInside)
{
    enter(button);
    // Giving the capture up makes the system look again where the cursor is: that alone may be a move.
    auto const lost = [&] {
        ::ReleaseCapture();
        kit::moveCursorTo(button.window(), kInsideToo.x, kInsideToo.y);
    };
    EXPECT_THAT(button.during(lost, "MouseMove"),
                ElementsAreArray({"MouseExit", "MouseEnter", "Paint", "MouseMove"}));
    EXPECT_EQ(::GetCapture(), button.window());
}

TEST_F(Hover, takesTheCaptureFromWhoeverHasItAtAMoveInside)
{
    ::SetCapture(form.window());
    button.events().forget();
    ASSERT_TRUE(kit::moveCursorTo(button.window(), kInside.x, kInside.y));
    kit::pumpPending();
    EXPECT_THAT(button.happened(), IsEmpty()) << "the move was the other window's";
    ::SendMessageA(button.window(), WM_MOUSEMOVE, 0, MAKELPARAM(kInside.x, kInside.y));
    EXPECT_EQ(::GetCapture(), button.window());
    EXPECT_THAT(button.happened(), ElementsAreArray({"MouseEnter", "Paint", "MouseMove"}));
    EXPECT_THAT(leave(button), ElementsAreArray({"MouseExit", "Paint", "MouseMove"}));
}

TEST_F(Hover, hasTakenTheCaptureBeforeItTellsAndGivenItBackBeforeItTells)
{
    HWND atEnter = nullptr;
    HWND atExit = button.window();
    button.events().action = [&](auto const&) {
        std::string const name = button.lastEvent();
        if (name == "MouseEnter")
            atEnter = ::GetCapture();
        if (name == "MouseExit")
            atExit = ::GetCapture();
    };
    enter(button);
    leave(button);
    EXPECT_EQ(atEnter, button.window());
    EXPECT_EQ(atExit, nullptr);
}

TEST_F(Hover, showsAtTheNextPaintingWithoutAnyMouseMessage)
{
    ASSERT_TRUE(kit::moveCursorTo(form.window(), 80, 200));
    kit::pumpPending();
    ASSERT_EQ(button.look(), "normal");
    EXPECT_EQ(lookAt(kBelow), "hot");
    EXPECT_EQ(lookAt(kPlace), "normal");
}

TEST_F(Hover, offAPressedButtonThatMovesAwayForgetsThePress)
{
    enterAndPress(button);
    EXPECT_EQ(lookAt(kBelow), "normal");
    EXPECT_EQ(lookAt(kPlace), "hot") << "painting took the press back";
}

TEST_F(Hover, refreshesTheToolTipTextFromTheExtender)
{
    button.extender().offer(L"ToolTipText", Variant::ofString(L"first"));
    enter(button);
    EXPECT_EQ(toolTipText(), L"first");
    button.extender().offer(L"ToolTipText", Variant::ofString(L"second"));
    EXPECT_EQ(toolTipText(), L"first");
    moveInside(button);
    EXPECT_EQ(toolTipText(), L"second");
}

TEST_F(Hover, goesOnWhereTheExtenderHasNoToolTipText)
{
    EXPECT_EQ(button->put_ToolTipText(Bstr(L"kept").get()), S_OK);
    button.extender().remove(L"ToolTipText");
    EXPECT_THAT(enter(button), ElementsAreArray({"MouseEnter", "Paint", "MouseMove"}));
    form.record().answer("Site.GetExtendedControl", E_NOTIMPL);
    EXPECT_THAT(leave(button), Contains("MouseExit"));
    EXPECT_EQ(toolTipText(), L"kept");
}

int g_questions = 0;

BOOL WINAPI countedGetCursorPos(POINT* at)
{
    ++g_questions;
    return ::GetCursorPos(at);
}

/// Counts the component's questions while it lives.
class CursorQuestions : kit::NotCopied {
public:
    explicit CursorQuestions(HMODULE component)
    {
        forEachImport(component, [&](char const* name, void** slot) {
            if (std::strcmp(name, "GetCursorPos") == 0)
                m_slot = slot;
        });
        if (m_slot) {
            m_own = *m_slot;
            exchangeImport(m_slot, reinterpret_cast<void*>(&countedGetCursorPos));
        }
    }
    ~CursorQuestions()
    {
        if (m_slot)
            exchangeImport(m_slot, m_own);
    }

    int during(std::function<void()> const& act) const
    {
        EXPECT_TRUE(m_slot) << "the component does not ask for the cursor";
        g_questions = 0;
        act();
        return g_questions;
    }

private:
    void** m_slot = nullptr;
    void* m_own = nullptr;
};

class Cursor : public FormTest {
protected:
    CursorQuestions questions{library().module()};

    void SetUp() override
    {
        FormTest::SetUp();
        button.start();
    }
    /// Runs at each of the button's events of that name.
    void at(char const* event, std::function<void()> const& act)
    {
        button.events().action = [this, event, act](auto const&) {
            if (button.lastEvent() == event)
                act();
        };
    }
    /// Puts the cursor there and tells the button, before the system does.
    void moveTo(POINT at, WPARAM keys = 0) const
    {
        POINT screen = at;
        ::ClientToScreen(button.window(), &screen);
        ::SetCursorPos(screen.x, screen.y);
        ::SendMessageA(button.window(), WM_MOUSEMOVE, keys, MAKELPARAM(at.x, at.y));
    }
};

TEST_F(Cursor, isAskedForOnceAMessageWhereNobodyListens)
{
    button.stopListening();
    EXPECT_EQ(questions.during([&] { moveTo(kInside); }), 1);
    EXPECT_EQ(::GetCapture(), button.window());
    EXPECT_EQ(button.look(), "hot");
    EXPECT_EQ(questions.during([&] { moveTo(kInsideToo); }), 1);
    EXPECT_EQ(questions.during([&] { moveTo(kBeside); }), 1);
    EXPECT_EQ(button.look(), "normal");
}

TEST_F(Cursor, thatAListenerMovesAwayIsNotOverTheButton)
{
    at("MouseEnter", [&] { ::SetCursorPos(1200, 1000); });
    button.events().forget();
    moveTo(kInside);
    EXPECT_EQ(button.look(), "normal");
    EXPECT_THAT(button.happened(), ElementsAreArray({"MouseEnter", "Paint", "MouseMove"}));
}

TEST_F(Cursor, thatAListenerMovesBackIsOverTheButton)
{
    moveTo(kInside);
    at("MouseExit", [&] { kit::moveCursorTo(button.window(), kInside.x, kInside.y); });
    moveTo(kBeside);
    EXPECT_EQ(button.look(), "hot");
}

TEST_F(Cursor, thatAListenerMovesInMouseMoveCountsForADrag)
{
    moveTo(kInside);
    at("MouseMove", [&] { ::SetCursorPos(1200, 1000); });
    moveTo(kInsideToo); // over the button, and not any more when it ends
    button.events().action = nullptr;
    button.events().forget();
    moveTo(kInside, MK_LBUTTON);
    EXPECT_THAT(button.happened(), ElementsAreArray({"Paint", "MouseMove"})) << "dragged back over it";
    EXPECT_EQ(button.look(), "pressed");
    ::ReleaseCapture();
}

} // namespace
} // namespace quillet::input

// How often the button asks where the cursor is: once a message, and anew after a listener.
#include "Gestures.h"
#include "drawing/ImportTable.h"
#include "kit/Pump.h"

#include <cstring>

namespace quillet::input {
namespace {

using testing::ElementsAre;

int g_questions = 0;

BOOL WINAPI countedGetCursorPos(POINT* at)
{
    ++g_questions;
    return ::GetCursorPos(at);
}

/// Counts the component's questions while it lives.
class CursorQuestions {
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
    CursorQuestions(CursorQuestions const&) = delete;
    CursorQuestions& operator=(CursorQuestions const&) = delete;

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

class Cursor : public kit::ControlTest {
protected:
    kit::FakeForm form;
    FormButton button{library(), form};
    CursorQuestions questions{library().module()};

    void SetUp() override
    {
        ControlTest::SetUp();
        button.start();
    }
    void TearDown() override
    {
        button.events().action = nullptr;
        EXPECT_TRUE(kit::moveCursorAway());
        kit::pumpPending();
        EXPECT_EQ(::GetCapture(), nullptr);
    }
    /// Puts the cursor there and tells the button, before the system does.
    void moveTo(POINT at) const
    {
        POINT screen = at;
        ::ClientToScreen(button.window(), &screen);
        ::SetCursorPos(screen.x, screen.y);
        ::SendMessageA(button.window(), WM_MOUSEMOVE, 0, MAKELPARAM(at.x, at.y));
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
    button.events().action = [&](kit::EventRecorder::Event const&) {
        if (button.lastEvent() == "MouseEnter")
            ::SetCursorPos(1200, 1000);
    };
    button.events().forget();
    moveTo(kInside);
    EXPECT_EQ(button.look(), "normal");
    EXPECT_THAT(button.happened(), ElementsAre("MouseEnter", "Paint", "MouseMove"));
}

TEST_F(Cursor, thatAListenerMovesBackIsOverTheButton)
{
    moveTo(kInside);
    button.events().action = [&](kit::EventRecorder::Event const&) {
        if (button.lastEvent() == "MouseExit")
            kit::moveCursorTo(button.window(), kInside.x, kInside.y);
    };
    moveTo(kBeside);
    EXPECT_EQ(button.look(), "hot");
}

TEST_F(Cursor, thatAListenerMovesInMouseMoveCountsForADrag)
{
    moveTo(kInside);
    button.events().action = [&](kit::EventRecorder::Event const&) {
        if (button.lastEvent() == "MouseMove")
            ::SetCursorPos(1200, 1000);
    };
    moveTo(kInsideToo); // over the button, and not any more when it ends
    button.events().action = nullptr;
    button.events().forget();
    POINT screen = kInside;
    ::ClientToScreen(button.window(), &screen);
    ::SetCursorPos(screen.x, screen.y);
    ::SendMessageA(button.window(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(kInside.x, kInside.y));
    EXPECT_THAT(button.happened(), ElementsAre("Paint", "MouseMove")) << "dragged back over it";
    EXPECT_EQ(button.look(), "pressed");
    ::ReleaseCapture();
}

} // namespace
} // namespace quillet::input

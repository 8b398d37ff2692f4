// Events as lines of text in the log and in the pane, and what a button raises under a real mouse.
#include "base/Variant.h"
#include "gallery/FormKit.h"
#include "gallery/app/EventLog.h"
#include "gallery/app/EventPane.h"
#include "gallery/app/EventText.h"
#include "kit/Input.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <set>

namespace quillet::gallery::test {
namespace {

/// A form with one button and one of a control array, and events that they are said to raise.
class EventOutput : public ::testing::Test {
protected:
    FormKit kit{node("VB.CommandButton", "cmdOne") + node("VB.CommandButton", "cmdTwo", "Index = 2")};

    /// With the arguments in the caller's order.
    template <class... Values> FormEvent event(wchar_t const* control, wchar_t const* name, Values... values)
    {
        m_values = {std::move(values)...};
        m_raw.clear();
        for (auto value = m_values.rbegin(); value != m_values.rend(); ++value)
            m_raw.push_back(value->get()); // automation has the last one first
        m_params = {m_raw.data(), nullptr, static_cast<UINT>(m_raw.size()), 0};
        return {kit.control(control), name, m_params};
    }
    FormEvent move(float x)
    {
        return event(L"cmdOne", L"MouseMove", Variant::ofShort(0), Variant::ofShort(0), Variant::ofFloat(x),
                     Variant::ofFloat(0));
    }

private:
    std::vector<Variant> m_values;
    std::vector<VARIANT> m_raw;
    DISPPARAMS m_params{};
};

TEST_F(EventOutput, anEventWithoutArgumentsIsItsName)
{
    EXPECT_EQ(eventText(event(L"cmdOne", L"Click")), L"cmdOne.Click");
}

TEST_F(EventOutput, argumentsStandInTheOrderOfTheDeclarationAndReferencesAreFollowed)
{
    short button = 1;
    float across = 120.5F;
    EXPECT_EQ(eventText(event(L"cmdOne", L"MouseDown", Variant::ofShortRef(&button), Variant::ofShort(2),
                              Variant::ofFloatRef(&across), Variant::ofFloat(-90))),
              L"cmdOne.MouseDown(1, 2, 120.5, -90)");
}

TEST_F(EventOutput, textIsQuotedAndWhatIsNoValueIsAQuestionMark)
{
    EXPECT_EQ(eventText(event(L"cmdOne", L"Change", Variant::ofString(L"a \"b\", c"), Variant::ofBool(true),
                              Variant::ofDispatch(&kit.extender(L"cmdOne")))),
              L"cmdOne.Change(\"a \"\"b\"\", c\", True, ?)");
}

TEST_F(EventOutput, aControlOfAnArrayIsNamedWithItsIndex)
{
    EXPECT_EQ(eventText(event(L"cmdTwo", L"Click")), L"cmdTwo(2).Click");
}

/// As another program reads it while it is written.
std::string contents(std::wstring const& path)
{
    UniqueFile const file(::CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                        nullptr, OPEN_EXISTING, 0, nullptr));
    std::array<char, 256> bytes{};
    DWORD count = 0;
    if (file.get() == INVALID_HANDLE_VALUE ||
        !::ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr))
        return "the file cannot be read";
    return std::string(bytes.data(), count);
}

TEST(EventLog, everyLineIsInTheFileAtOnceAndAnOldFileIsReplaced)
{
    std::wstring const path = programFolder() + L"\\quillet-events.txt";
    {
        EventLog log(path);
        log.add(L"cmdOne.MouseEnter");
        EXPECT_EQ(contents(path), "cmdOne.MouseEnter\n");
        log.add(L"cmd\x00D6l.Click");
        EXPECT_EQ(contents(path), "cmdOne.MouseEnter\ncmd\xC3\x96l.Click\n");
    }
    {
        EventLog const log(path);
        EXPECT_EQ(contents(path), "");
    }
    ::DeleteFileW(path.c_str());
}

TEST(EventLog, aFileThatCannotBeWrittenIsSaidAtTheBeginning)
{
    try {
        EventLog const log(L"no such folder\\events.txt");
        FAIL() << "it was opened";
    } catch (FormError const& error) {
        EXPECT_EQ(error.text(), L"no such folder\\events.txt: the file cannot be written");
    }
}

std::vector<std::wstring> linesOf(HWND list)
{
    std::vector<std::wstring> lines;
    LRESULT const count = ::SendMessageW(list, LB_GETCOUNT, 0, 0);
    for (WPARAM i = 0; static_cast<LRESULT>(i) < count; ++i) {
        std::wstring line(static_cast<std::size_t>(::SendMessageW(list, LB_GETTEXTLEN, i, 0)) + 1, L'\0');
        ::SendMessageW(list, LB_GETTEXT, i, reinterpret_cast<LPARAM>(line.data()));
        line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

TEST_F(EventOutput, thePaneLeavesPaintOutAndShowsOfMovesInARowTheNewest)
{
    EventPane pane(kit.form().window());
    EXPECT_THAT(linesOf(pane.list()), IsEmpty());
    pane.add(event(L"cmdOne", L"MouseEnter"));
    pane.add(event(L"cmdOne", L"Paint"));
    pane.add(move(1));
    pane.add(event(L"cmdOne", L"Paint"));
    pane.add(move(2));
    pane.add(event(L"cmdOne", L"Click"));
    pane.add(event(L"cmdOne", L"Click"));
    pane.add(move(3));
    EXPECT_THAT(linesOf(pane.list()),
                ElementsAreArray({L"cmdOne.MouseEnter", L"cmdOne.MouseMove(0, 0, 2, 0)", L"cmdOne.Click",
                                  L"cmdOne.Click", L"cmdOne.MouseMove(0, 0, 3, 0)"}));
}

TEST_F(EventOutput, thePaneKeepsTheNewestLineInSightAndDropsTheOldest)
{
    EventPane pane(kit.form().window());
    pane.add(event(L"cmdTwo", L"Click"));
    pane.moveTo({0, 0, 200, 100}, 20);
    for (int i = 0; i < 500; ++i)
        pane.add(event(L"cmdOne", L"Click"));
    EXPECT_EQ(::SendMessageW(pane.list(), LB_GETCOUNT, 0, 0), 500);
    EXPECT_EQ(linesOf(pane.list()).front(), L"cmdOne.Click");
    RECT line{};
    RECT area{};
    ::SendMessageW(pane.list(), LB_GETITEMRECT, 499, reinterpret_cast<LPARAM>(&line));
    ::GetClientRect(pane.list(), &area);
    EXPECT_GE(line.top, 0);
    EXPECT_LE(line.bottom, area.bottom);
}

TEST_F(EventOutput, thePaneBeginsAnewWithAHintInPlaceOfItsTitle)
{
    EventPane pane(kit.form().window());
    pane.add(event(L"cmdOne", L"Click"));
    pane.begin(L"Double-click something");
    EXPECT_THAT(linesOf(pane.list()), IsEmpty());
    EXPECT_TRUE(::FindWindowExW(kit.form().window(), nullptr, L"STATIC", L"Double-click something"));
    pane.begin();
    EXPECT_TRUE(::FindWindowExW(kit.form().window(), nullptr, L"STATIC", L"Events"));
}

using Lines = std::vector<std::string>;

constexpr POINT kInside{20, 10}; // pixels of the button's own area

class EventOrder : public ::testing::Test {
protected:
    Demo demo;

    EventOrder()
    {
        ::SetCursorPos(2, 2);
        demo.form().show();
        demo.focusOn(L"cmdPlain");
        settle();
    }
    ~EventOrder() override
    {
        kit::release(kit::MouseButton::Left);
        ::SetCursorPos(2, 2);
        demo.pump();
    }

    /// Everything that waits has been handled and painted, and nothing is written down yet.
    void settle()
    {
        demo.pump();
        ::RedrawWindow(demo.form().window(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        demo.pump();
        demo.events.clear();
        demo.lines.clear();
    }

    /// The lines of what follows an act, up to an event and what is left to handle then. The
    /// system may repeat a move on the spot.
    template <class Act> Lines during(Act const& act, std::string const& last)
    {
        settle();
        act();
        EXPECT_TRUE(demo.waitFor(last));
        demo.pump();
        demo.lines.erase(std::unique(demo.lines.begin(), demo.lines.end(),
                                     [](std::string const& one, std::string const& next) {
                                         return one == next && one.find(".MouseMove(") != std::string::npos;
                                     }),
                         demo.lines.end());
        return demo.lines;
    }

    Lines enter()
    {
        HWND const window = demo.control(L"cmdPlain").window();
        return during([&] { kit::moveCursorTo(window, kInside.x, kInside.y); }, "cmdPlain.MouseMove");
    }
    Lines press()
    {
        return during([] { kit::press(kit::MouseButton::Left); }, "cmdPlain.MouseDown");
    }
    Lines letGo()
    {
        return during([] { kit::release(kit::MouseButton::Left); }, "cmdPlain.Click");
    }

    /// The line of a mouse event of cmdPlain at the given pixels, which a button measures in twips.
    std::string line(char const* event, POINT pixels, int button) const
    {
        Resolution const scale = screenResolution();
        std::array<char, 96> text{};
        std::snprintf(text.data(), text.size(), "cmdPlain.%s(%d, 0, %ld, %ld)", event, button,
                      scale.twipsX(pixels.x), scale.twipsY(pixels.y));
        return text.data();
    }
};

TEST_F(EventOrder, enteringIsSaidThenPaintedThenTheMoveIsRaised)
{
    EXPECT_THAT(enter(), ElementsAreArray<std::string>(
                             {"cmdPlain.MouseEnter", "cmdPlain.Paint", line("MouseMove", kInside, 0)}));
}

TEST_F(EventOrder, aPressOfTheFocusedButtonPaintsItBeforeMouseDown)
{
    enter();
    EXPECT_THAT(press(), ElementsAreArray<std::string>({"cmdPlain.Paint", line("MouseDown", kInside, 1)}));
}

TEST_F(EventOrder, aReleasePaintsThenRaisesMouseUpThenClick)
{
    enter();
    press();
    EXPECT_THAT(letGo(), ElementsAreArray<std::string>(
                             {"cmdPlain.Paint", line("MouseUp", kInside, 1), "cmdPlain.Click"}));
}

TEST_F(EventOrder, leavingIsSaidThenPaintedThenTheMoveIsRaised)
{
    enter();
    POINT outside{2, 2};
    Lines const lines = during([&] { ::SetCursorPos(outside.x, outside.y); }, "cmdPlain.MouseMove");
    ::ScreenToClient(demo.control(L"cmdPlain").window(), &outside);
    EXPECT_THAT(lines, ElementsAreArray<std::string>(
                           {"cmdPlain.MouseExit", "cmdPlain.Paint", line("MouseMove", outside, 0)}));
}

TEST_F(EventOrder, aPressThatBringsTheFocusPaintsEveryButtonOfTheFormBeforeMouseDown)
{
    demo.focusOn(L"txtName");
    enter();
    Lines lines = press();
    ASSERT_GE(lines.size(), 2U);
    EXPECT_EQ(lines.back(), line("MouseDown", kInside, 1));
    lines.pop_back();
    EXPECT_EQ(lines.back(), "cmdPlain.Paint");
    std::set<std::string> expected;
    for (auto const& control : demo.form().controls())
        if (control->isEmbedding())
            expected.insert(narrow(control->state().name) + ".Paint");
    EXPECT_EQ(std::set<std::string>(lines.begin(), lines.end()), expected);
}

} // namespace
} // namespace quillet::gallery::test

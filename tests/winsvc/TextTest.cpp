// The text of a tip: asked for at each showing, answered with the extender's.
#include "ServiceTest.h"
#include "input/Button.h"

#include <cstring>

namespace quillet::winsvc {
namespace {

constexpr UINT kNotify = 78;
constexpr UINT kNeedText = static_cast<UINT>(-520);

/// The tooltip window's question as the older layout has it, between bytes that nobody may touch.
struct Request {
    std::uint64_t before = kGuard;
    NMTTDISPINFOA record{};
    std::uint64_t after = kGuard;

    static constexpr std::uint64_t kGuard = 0xA5A5A5A5A5A5A5A5U;

    Request(HWND from, HWND tool)
    {
        std::memset(&record, 0x5A, sizeof record);
        record.hdr.hwndFrom = from;
        record.hdr.idFrom = reinterpret_cast<UINT_PTR>(tool);
        record.hdr.code = kNeedText;
        record.lpszText = unanswered();
        std::strcpy(record.szText, "before");
    }
    static char* unanswered()
    {
        static char text[] = "unanswered";
        return text;
    }
    void sendTo(HWND window)
    {
        ::SendMessageA(window, kNotify, record.hdr.idFrom, reinterpret_cast<LPARAM>(&record));
    }
    bool isAnswered() const { return record.lpszText != unanswered(); }
    /// Whether everything but the text's address is as it was in the other.
    bool differsOnlyInTextFrom(Request const& other) const
    {
        Request mine = *this;
        mine.record.lpszText = other.record.lpszText;
        return std::memcmp(&mine, &other, sizeof mine) == 0;
    }
};

void setText(FormButton& button, std::wstring_view text)
{
    button.extender().offer(L"ToolTipText", Variant::ofString(text));
}

std::string ansi(std::wstring_view text)
{
    char result[256] = "";
    ::WideCharToMultiByte(CP_ACP, 0, text.data(), static_cast<int>(text.size()), result, 255, nullptr,
                          nullptr);
    return result;
}

/// What a button answers to the tooltip window.
std::string answerOf(FormButton& button)
{
    Request request(theToolTipWindow(), button.window());
    request.sendTo(button.window());
    EXPECT_TRUE(request.isAnswered());
    return request.record.lpszText;
}

/// A button that runs.
class TipText : public ButtonTest {
protected:
    void SetUp() override
    {
        ButtonTest::SetUp();
        button.start();
    }
    void expectAnswerAlone(std::wstring const& text)
    {
        setText(button, text);
        Request request(theToolTipWindow(), button.window());
        Request const original = request;
        request.sendTo(button.window());
        ASSERT_TRUE(request.isAnswered());
        EXPECT_EQ(request.record.lpszText, ansi(text));
        EXPECT_TRUE(request.differsOnlyInTextFrom(original));
    }
    void expectNoAnswerTo(Request request)
    {
        Request const original = request;
        request.sendTo(button.window());
        EXPECT_FALSE(request.isAnswered()) << request.record.hdr.code;
        EXPECT_TRUE(request.differsOnlyInTextFrom(original)) << request.record.hdr.code;
    }
};

TEST_ON_NEW_THREAD(TipText, isTheExtendersAndNothingElseInTheRecordIsWritten)
{
    expectAnswerAlone(L"Saves everything");
}

TEST_ON_NEW_THREAD(TipText, longerThanTheRecordsOwnSpaceIsGivenWhole)
{
    expectAnswerAlone(std::wstring(200, L'w'));
}

TEST_ON_NEW_THREAD(TipText, isTheExtendersOfNowAtEachAsking)
{
    for (wchar_t const* const text : {L"one", L"another one", L"x"}) {
        setText(button, text);
        EXPECT_EQ(answerOf(button), ansi(text));
    }
}

TEST_ON_NEW_THREAD(TipText, isNotTheControlsOwnProperty)
{
    setText(button, L"the extender's");
    EXPECT_EQ(button->put_ToolTipText(Bstr(L"the control's").get()), S_OK);
    EXPECT_EQ(answerOf(button), "the extender's");
}

TEST_ON_NEW_THREAD(TipText, isConvertedToTheSystemsCodePage)
{
    std::wstring const text = L"Gr\x00F6\x00DF"
                              L"e \x20AC \x4E2D";
    setText(button, text);
    EXPECT_EQ(answerOf(button), ansi(text));
}

TEST_ON_NEW_THREAD(TipText, staysValidAfterTheAnswerAndWhenAnotherControlAnswers)
{
    RunningButton second(library(), form, 2);
    second.start();
    setText(button, L"the first control's text");
    setText(second, L"the second control's text");
    Request asked(theToolTipWindow(), button.window());
    asked.sendTo(button.window());
    Request askedToo(theToolTipWindow(), second.window());
    askedToo.sendTo(second.window());
    setText(button, L"changed");
    ASSERT_TRUE(asked.isAnswered());
    ASSERT_TRUE(askedToo.isAnswered());
    EXPECT_STREQ(asked.record.lpszText, "the first control's text");
    EXPECT_STREQ(askedToo.record.lpszText, "the second control's text");
}

TEST_ON_NEW_THREAD(TipText, thatTheExtenderFailsToGiveLeavesTheRecordUnwritten)
{
    using Failing = void (*)(FormButton&);
    Failing const failings[] = {
        [](FormButton& b) { b.extender().refuse(L"ToolTipText"); },
        [](FormButton& b) {
            b.extender().offer(L"ToolTipText", Variant::ofUnknown(b.hosted().form().frame().unknown()));
        },
        [](FormButton& b) { b.extender().remove(L"ToolTipText"); },
        [](FormButton& b) { b.hosted().form().record().answerNothing("Site.GetExtendedControl"); },
        [](FormButton& b) { b.hosted().form().record().answer("Site.GetExtendedControl", E_NOTIMPL); },
        [](FormButton& b) { b.as<IOleObject>()->SetClientSite(nullptr); },
    };
    for (Failing const fail : failings) {
        fail(button);
        expectNoAnswerTo({theToolTipWindow(), button.window()});
    }
}

TEST_ON_NEW_THREAD(TipText, thatFailedOnceIsGivenAgainOnceTheExtenderHasIt)
{
    button.extender().refuse(L"ToolTipText");
    expectNoAnswerTo({theToolTipWindow(), button.window()});
    setText(button, L"back");
    EXPECT_EQ(answerOf(button), "back");
}

// Whoever may the asker be: its window decides.
TEST_ON_NEW_THREAD(TipText, isNotGivenToAnotherWindowThanTheToolTipWindow)
{
    setText(button, L"secret");
    UniqueWindow const other(::CreateWindowExW(0, TOOLTIPS_CLASSW, L"", WS_POPUP, 0, 0, 10, 10, nullptr,
                                               nullptr, nullptr, nullptr));
    for (HWND const from : {other.get(), form.window(), button.window(), HWND{}}) {
        form.record().forget();
        expectNoAnswerTo({from, button.window()});
        EXPECT_EQ(form.record().count("Extender.ToolTipText"), 0);
    }
}

TEST_ON_NEW_THREAD(TipText, isNotGivenForAnotherCode)
{
    setText(button, L"secret");
    for (int const code : {-521, -522, -523, -530, -519, 520, 0}) {
        Request request(theToolTipWindow(), button.window());
        request.record.hdr.code = static_cast<UINT>(code);
        expectNoAnswerTo(request);
    }
}

TEST_ON_NEW_THREAD(TipText, ofANotificationWithoutARecordDoesNoHarm)
{
    EXPECT_EQ(::SendMessageA(button.window(), kNotify, 0, 0), 0);
}

TEST_ON_NEW_THREAD(TipText, askedForWhileTheExtenderTakesTheControlAwayIsCleanlyNotGiven)
{
    button.extender().provide(L"ToolTipText", [&](Variant const&) {
        button.remove();
        return Variant::ofString(L"too late");
    });
    Request request(theToolTipWindow(), button.window());
    request.sendTo(button.window());
    EXPECT_FALSE(::IsWindow(button.window()));
}

/// A button in the active window with the cursor elsewhere, and the tip that real hovering brings.
class ShownTip : public ButtonTest {
protected:
    void SetUp() override
    {
        ButtonTest::SetUp();
        button.start();
        ASSERT_TRUE(kit::focus(button.window()));
    }
    std::string shown()
    {
        HWND const toolTip = theToolTipWindow();
        input::enter(button);
        EXPECT_TRUE(kit::pumpUntil([&] { return ::IsWindowVisible(toolTip) != FALSE; })) << "no tip is shown";
        return textOf(toolTip);
    }
    void hide()
    {
        HWND const toolTip = theToolTipWindow();
        input::leave(button);
        EXPECT_TRUE(kit::moveCursorAway());
        EXPECT_TRUE(kit::pumpUntil([&] { return !::IsWindowVisible(toolTip); })) << "the tip stays";
    }
};

TEST_ON_NEW_THREAD(ShownTip, hasTheExtendersTextAndAChangeOfItTakesEffectAtTheNextTimeTheTipShows)
{
    setText(button, L"Shown first");
    EXPECT_EQ(shown(), "Shown first");
    hide();
    setText(button, L"Shown next");
    EXPECT_EQ(shown(), "Shown next");
    hide();
}

TEST_ON_NEW_THREAD(ShownTip, goesWhenTheButtonIsPressed)
{
    setText(button, L"Press");
    HWND const toolTip = theToolTipWindow();
    EXPECT_EQ(shown(), "Press");
    input::pressDown(button);
    EXPECT_TRUE(kit::pumpUntil([&] { return !::IsWindowVisible(toolTip); }));
    input::letUp(button);
    EXPECT_TRUE(kit::moveCursorAway());
    kit::pumpPending();
}

TEST_ON_NEW_THREAD(ShownTip, goesWithItsControl)
{
    RunningButton other(library(), form, 2);
    other.start();
    setText(button, L"Gone soon");
    EXPECT_EQ(shown(), "Gone soon");
    HWND const toolTip = theToolTipWindow();
    button.remove();
    EXPECT_TRUE(kit::moveCursorAway());
    kit::pumpPending();
    other.remove();
    EXPECT_FALSE(::IsWindow(toolTip));
}

} // namespace
} // namespace quillet::winsvc

// The form of option buttons and check boxes, worked with real keys alone.
#include "gallery/Demo.h"
#include "gallery/host/Extender.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillet::gallery::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class OptionForm : public testing::Test {
protected:
    OptionForm()
    {
        ::SetCursorPos(0, 0);
        demo.form().show();
        demo.pump();
    }

    long value(wchar_t const* name) { return getByName(demo.extender(name), L"Value").toLong(); }
    std::vector<long> sizes()
    {
        return {value(L"optSmall"), value(L"optMedium"), value(L"optLarge"), value(L"optHuge")};
    }
    std::vector<long> colours()
    {
        return {value(L"optRed"), value(L"optGreen"), value(L"optBlue"), value(L"optGrey")};
    }
    std::vector<long> deliveries()
    {
        return {value(L"optPost"), value(L"optCourier"), value(L"optFetch"), value(L"optPigeon")};
    }
    std::string active()
    {
        FormControl const* const control = demo.form().focus().active();
        return control ? narrow(control->state().name) : "";
    }
    /// Types a key, with another one held, through the form's own keyboard rules.
    void type(BYTE key, BYTE held = 0)
    {
        typeKey(key, held);
        bool up = false;
        WPARAM const last = held ? held : key;
        for (ULONGLONG const end = ::GetTickCount64() + 5000; !up && ::GetTickCount64() < end;) {
            ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
            MSG message;
            while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
                up = up || ((message.message == WM_KEYUP || message.message == WM_SYSKEYUP) &&
                            (message.wParam == last || (held == VK_MENU && message.wParam == VK_MENU)));
                if (demo.form().translate(message))
                    continue;
                ::TranslateMessage(&message);
                ::DispatchMessageW(&message);
            }
        }
        EXPECT_TRUE(up) << "the key did not come";
    }
    int clicks(std::string const& name)
    {
        return static_cast<int>(std::count(demo.events.begin(), demo.events.end(), name + ".Click"));
    }

    Demo demo{std::wstring(GALLERY_FORMS L"/options.frm"), UserMode::Run};
};

TEST_F(OptionForm, opensWithoutAWarningAndWithItsChoices)
{
    EXPECT_THAT(demo.warnings, IsEmpty());
    EXPECT_THAT(sizes(), ElementsAre(0, 1, 0, 0));
    EXPECT_THAT(colours(), ElementsAre(0, 0, 1, 0));
    EXPECT_THAT(deliveries(), ElementsAre(0, -1, 0, 0));
    EXPECT_EQ(value(L"chkGift"), 0);
    EXPECT_EQ(value(L"chkCard"), 1);
    EXPECT_EQ(value(L"chkNews"), 2);
}

TEST_F(OptionForm, tabReachesTheChosenOptionOfEachFrameAndEachCheckBox)
{
    std::vector<std::string> visited = {active()};
    for (int i = 0; i < 12; ++i) {
        type(VK_TAB);
        visited.push_back(active());
    }
    EXPECT_THAT(visited, ElementsAre("optMedium", "optBlue", "optCourier", "chkGift", "chkCard", "chkNews",
                                     "chkExpress", "chkInsured", "chkLong", "chkPlain", "chkPlainSet",
                                     "cmdOrder", "optMedium"));
    EXPECT_THAT(sizes(), ElementsAre(0, 1, 0, 0)); // passing by chooses nothing
}

TEST_F(OptionForm, chosenOptionAloneIsATabStopOfItsFrame)
{
    std::vector<bool> stops;
    for (wchar_t const* name : {L"optSmall", L"optMedium", L"optLarge"})
        stops.push_back(getByName(demo.extender(name), L"TabStop").toBool());
    EXPECT_THAT(stops, ElementsAre(false, true, false));
    type(VK_DOWN);
    stops.clear();
    for (wchar_t const* name : {L"optSmall", L"optMedium", L"optLarge"})
        stops.push_back(getByName(demo.extender(name), L"TabStop").toBool());
    EXPECT_THAT(stops, ElementsAre(false, false, true));
}

TEST_F(OptionForm, arrowKeysChooseAmongTheOptionsOfAFrame)
{
    demo.events.clear();
    type(VK_DOWN);
    EXPECT_EQ(active(), "optLarge");
    EXPECT_THAT(sizes(), ElementsAre(0, 0, 1, 0));
    EXPECT_EQ(clicks("optLarge"), 1);
    type(VK_DOWN); // past the disabled one, round the end
    EXPECT_EQ(active(), "optSmall");
    EXPECT_THAT(sizes(), ElementsAre(1, 0, 0, 0));
    type(VK_UP);
    EXPECT_EQ(active(), "optLarge");
    EXPECT_THAT(colours(), ElementsAre(0, 0, 1, 0));
    EXPECT_THAT(deliveries(), ElementsAre(0, -1, 0, 0));
}

TEST_F(OptionForm, arrowKeysStayAmongThePlainOptionsOfTheirFrame)
{
    type(VK_TAB);
    type(VK_TAB);
    EXPECT_EQ(active(), "optCourier");
    type(VK_RIGHT);
    EXPECT_THAT(deliveries(), ElementsAre(0, 0, -1, 0));
    EXPECT_THAT(sizes(), ElementsAre(0, 1, 0, 0));
    EXPECT_THAT(colours(), ElementsAre(0, 0, 1, 0));
}

TEST_F(OptionForm, accessKeysChooseAndTurnRound)
{
    demo.events.clear();
    type('R', VK_MENU);
    EXPECT_EQ(active(), "optRed");
    EXPECT_THAT(colours(), ElementsAre(1, 0, 0, 0));
    EXPECT_EQ(clicks("optRed"), 1);
    type('I', VK_MENU);
    EXPECT_EQ(active(), "chkGift");
    EXPECT_EQ(value(L"chkGift"), 1);
    EXPECT_EQ(clicks("chkGift"), 1);
    type('N', VK_MENU);
    EXPECT_EQ(value(L"chkNews"), 0); // out of the third state
}

TEST_F(OptionForm, spaceTurnsACheckBoxRoundAndEnterPressesTheDefaultButton)
{
    for (int i = 0; i < 3; ++i)
        type(VK_TAB);
    EXPECT_EQ(active(), "chkGift");
    type(VK_SPACE);
    EXPECT_EQ(value(L"chkGift"), 1);
    type(VK_SPACE);
    EXPECT_EQ(value(L"chkGift"), 0);
    demo.events.clear();
    type(VK_RETURN);
    EXPECT_EQ(clicks("cmdOrder"), 1);
    EXPECT_EQ(clicks("chkGift"), 0);
}

TEST_F(OptionForm, everyGroupKeepsOneChoiceThroughAWholeRound)
{
    for (BYTE const key :
         {BYTE{VK_DOWN}, BYTE{VK_TAB}, BYTE{VK_LEFT}, BYTE{VK_TAB}, BYTE{VK_UP}, BYTE{VK_TAB}})
        type(key);
    EXPECT_THAT(sizes(), ElementsAre(0, 0, 1, 0));
    EXPECT_THAT(colours(), ElementsAre(0, 1, 0, 0));
    EXPECT_THAT(deliveries(), ElementsAre(-1, 0, 0, 0));
}

} // namespace
} // namespace quillet::gallery::test

// Keys, access keys and the container's own way of pressing a button.
#include "Button.h"
#include "kit/ByName.h"
#include "kit/Pump.h"

#include <ole2.h>
#include <olectl.h>

namespace quillet::input {
namespace {

using testing::ElementsAreArray;
using testing::IsEmpty;

/// A message loop as containers have it: access keys go to the control that claims them.
class MnemonicLoop {
public:
    explicit MnemonicLoop(Button const& button) : m_control(button.as<IOleControl>()) {}

    /// Handles messages until that key's going up has been handled.
    bool untilKeyUp(WPARAM key)
    {
        ULONGLONG const end = ::GetTickCount64() + kit::kPumpLimit;
        for (bool up = false; !up;) {
            if (::GetTickCount64() >= end)
                return false;
            ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
            MSG message;
            while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
                handle(message);
                up = up || (message.message == WM_KEYUP && message.wParam == key);
            }
        }
        return true;
    }
    int claimed() const noexcept { return m_claimed; }

private:
    void handle(MSG& message)
    {
        CONTROLINFO info{};
        info.cb = sizeof info;
        bool const isSystemKey = message.message == WM_SYSKEYDOWN || message.message == WM_SYSCHAR;
        if (isSystemKey && SUCCEEDED(m_control->GetControlInfo(&info)) && info.hAccel &&
            ::IsAccelerator(info.hAccel, info.cAccel, &message, nullptr)) {
            ++m_claimed;
            m_control->OnMnemonic(&message);
            return;
        }
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }

    ComPtr<IOleControl> m_control;
    int m_claimed = 0;
};

/// Types a key with Alt, and another key after both have been let go.
void typeWithAltAndThen(BYTE key, BYTE after)
{
    {
        HeldKey const alt(VK_MENU);
        kit::typeKey(key);
    }
    kit::typeKey(after);
}

MSG accessKey(UINT message, wchar_t key)
{
    MSG result{};
    result.message = message;
    result.wParam = key;
    return result;
}

class Keys : public EachHostTest {
protected:
    /// Another window with the focus.
    UniqueWindow otherFocus()
    {
        auto edit = kit::newEditBox(form.window(), {200, 30, 260, 50});
        EXPECT_TRUE(kit::focus(edit.get()));
        settle(button());
        return edit;
    }
    /// How many keys typed with Alt the container gave to the button.
    int claimedOf(BYTE key)
    {
        MnemonicLoop loop(button());
        typeWithAltAndThen(key, 'Z');
        EXPECT_TRUE(loop.untilKeyUp('Z'));
        return loop.claimed();
    }
};

TEST_P(Keys, pressingSpaceOnAFocusedButtonRaisesClickAndEnterDoesNot)
{
    EXPECT_THAT(typed(button(), VK_SPACE), ElementsAreArray({"Click"}));
    EXPECT_EQ(button().look(), "normal");
    EXPECT_THAT(typed(button(), VK_RETURN), IsEmpty());
}

TEST_P(Keys, otherKeysRaiseNothing)
{
    for (int const key : {int{'A'}, int{'1'}, VK_TAB, VK_ESCAPE, VK_F1, VK_LEFT, VK_BACK})
        EXPECT_THAT(typed(button(), static_cast<BYTE>(key)), IsEmpty()) << key;
}

TEST_P(Keys, spaceTypedIntoAnotherWindowRaisesNothing)
{
    auto const edit = otherFocus();
    EXPECT_THAT(typed(button(), VK_SPACE), IsEmpty());
}

TEST_P(Keys, spaceTypedWhereTheDisabledButtonHadTheFocusRaisesNoClick)
{
    button()->put_Enabled(VARIANT_FALSE);
    // A disabled window may keep the focus or lose it to nobody: either way the key must come to nothing.
    settle(button());
    kit::typeKey(VK_SPACE);
    auto const edit = kit::newEditBox(form.window(), {200, 30, 260, 50});
    ASSERT_TRUE(kit::focus(edit.get()));
    EXPECT_TRUE(actUntilHandled(WM_KEYUP, [] { kit::typeKey('X'); }));
    EXPECT_EQ(button().count("Click"), 0);
}

TEST_P(Keys, theAccessKeyRaisesClickAndTakesTheFocus)
{
    auto const edit = kit::newEditBox(form.window(), {200, 30, 260, 50});
    for (UINT const message : {WM_SYSCHAR, WM_SYSKEYDOWN}) {
        ASSERT_TRUE(kit::focus(edit.get()));
        settle(button());
        MSG key = accessKey(message, L'S');
        EXPECT_EQ(button().as<IOleControl>()->OnMnemonic(&key), S_OK);
        EXPECT_EQ(button().count("Click"), 1);
        EXPECT_EQ(::GetFocus(), button().window());
    }
}

TEST_P(Keys, theAccessKeyTypedWithAltReachesTheButtonThroughItsContainer)
{
    button()->put_Caption(Bstr(L"&Save").get());
    auto const edit = otherFocus();
    EXPECT_EQ(claimedOf('S'), 1);
    EXPECT_EQ(button().count("Click"), 1);
    EXPECT_EQ(::GetFocus(), button().window());
}

TEST_P(Keys, anAccessKeyThatIsNotTheCaptionsReachesNobody)
{
    button()->put_Caption(Bstr(L"&Save").get());
    settle(button());
    EXPECT_EQ(claimedOf('Q'), 0);
    EXPECT_EQ(button().count("Click"), 0);
}

TEST_P(Keys, theAccessKeyOfADisabledButtonRaisesNothing)
{
    button()->put_Enabled(VARIANT_FALSE);
    settle(button());
    MSG key = accessKey(WM_SYSCHAR, L'S');
    button().as<IOleControl>()->OnMnemonic(&key);
    EXPECT_THAT(button().happened(), IsEmpty());
}

TEST_P(Keys, theContainersWayOfPressingADefaultButtonRaisesClick)
{
    kit::Called const called = kit::invoke(*button().operator->(), DISPID_DOCLICK, DISPATCH_METHOD);
    EXPECT_EQ(called.result, S_OK);
    EXPECT_THAT(button().happened(), ElementsAreArray({"Click"}));
}

QV_EACH_HOST(Keys);

} // namespace
} // namespace quillet::input

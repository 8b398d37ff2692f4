// The component's own controls on the demonstration form: found by file, loaded, pressed, and let go again.
#include "gallery/Demo.h"
#include "gallery/host/Extender.h"
#include "gallery/host/HostedControl.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

namespace quillet::gallery::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

TEST(RealControl, theFileBesideTheProgramMakesItsControlsWithoutRegistration)
{
    ControlLibraries libraries;
    libraries.add({{L"{any}", L"C:\\elsewhere\\quilbt.ocx", 0}}, {L"C:\\nowhere", programFolder()});
    NewControl const made = libraries.create(L"quillet", L"QVFLATCOMMAND");
    EXPECT_TRUE(made.object);
    EXPECT_TRUE(made.classInfo);
    EXPECT_TRUE(query<IOleObject>(made.object.get()));
}

TEST(RealControl, whatCannotBeMadeSaysWhy)
{
    ControlLibraries libraries;
    libraries.add({{L"{any}", L"quilbt.ocx", 0}, {L"{any}", L"gone.ocx", 0}}, {programFolder()});
    EXPECT_EQ(libraries.create(L"Quillet", L"qvFrog").failure, L"the library has no class of that name");
    EXPECT_THAT(narrow(libraries.create(L"Frog", L"Pond").failure),
                HasSubstr("not registered; gone.ocx is neither beside the program nor beside the form"));
}

TEST(RealControl, aFileThatIsNoComponentIsATroubleAndNoMore)
{
    std::wstring const path = programFolder() + L"\\notes.ocx";
    ::DeleteFileW(path.c_str());
    HANDLE const file = ::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr);
    ASSERT_NE(file, INVALID_HANDLE_VALUE);
    ::CloseHandle(file);
    ControlLibraries libraries;
    libraries.add({{L"{any}", L"notes.ocx", 0}}, {programFolder()});
    EXPECT_THAT(narrow(libraries.create(L"Notes", L"Note").failure), HasSubstr("notes.ocx cannot be used"));
    ::DeleteFileW(path.c_str());
}

TEST(RealControl, theDemonstrationFormOpensWithoutAWarningAndEveryControlIsLive)
{
    Demo demo;
    EXPECT_THAT(demo.warnings, IsEmpty());
    int live = 0;
    for (auto const& control : demo.form().controls()) {
        EXPECT_NE(control->window(), nullptr) << narrow(control->state().name);
        live += control->isEmbedding();
    }
    EXPECT_EQ(live, 20);
}

TEST(RealControl, theFormsLinesAreTheControlsProperties)
{
    Demo demo;
    IDispatch& thick = demo.extender(L"cmdThick");
    EXPECT_EQ(getByName(thick, L"Caption").toString().view(), L"&Thick border");
    EXPECT_EQ(getByName(thick, L"BorderWidth").toLong(), 3);
    EXPECT_EQ(getByName(thick, L"HotBorderWidth").toLong(), 5);
    EXPECT_EQ(getByName(thick, L"BorderColor").toLong(), 0x408000);
    EXPECT_EQ(getByName(thick, L"ToolTipText").toString().view(), L"3 pixels, 5 when hot, 2 when pressed");
    EXPECT_FALSE(getByName(demo.extender(L"cmdDisabled"), L"Enabled").toBool());
    EXPECT_TRUE(getByName(demo.extender(L"cmdBlank"), L"OfficeXPColors").toBool());
    auto const font = getByName(demo.extender(L"cmdItalic"), L"Font").toObject().as<IFont>();
    ASSERT_TRUE(font);
    BOOL italic = FALSE;
    font->get_Italic(&italic);
    EXPECT_TRUE(italic);
}

TEST(RealControl, whatAControlSavesIsWhatItsLinesSay)
{
    Demo demo;
    auto const bag = dynamic_cast<HostedControl&>(demo.control(L"cmdColoured")).save(false);
    EXPECT_EQ(bag->find(L"Caption")->toString().view(), L"C&oloured");
    EXPECT_EQ(bag->find(L"BackColor")->toLong(), 0xFBE6D2);
    EXPECT_EQ(bag->find(L"PressedForeColor")->toLong(), 0xFFFFFF);
    EXPECT_EQ(bag->find(L"BorderWidth"), nullptr) << "a default value is not saved";
    EXPECT_EQ(bag->find(L"ToolTipText"), nullptr) << "the extender keeps the tooltip text";
    EXPECT_EQ(bag->find(L"Left"), nullptr);
}

TEST(RealControl, enterPressesTheDefaultButtonAndEscTheCancelButton)
{
    Demo demo;
    demo.focusOn(L"txtName");
    demo.key(WM_KEYDOWN, VK_RETURN);
    EXPECT_THAT(demo.events, Contains("cmdSave.Click"));
    demo.events.clear();
    demo.key(WM_KEYDOWN, VK_ESCAPE);
    EXPECT_THAT(demo.events, Contains("cmdCancel.Click"));
}

TEST(RealControl, enterPressesTheFocusedButtonOnce)
{
    Demo demo;
    demo.focusOn(L"cmdThick");
    demo.events.clear();
    demo.key(WM_KEYDOWN, VK_RETURN);
    EXPECT_EQ(std::count(demo.events.begin(), demo.events.end(), "cmdThick.Click"), 1);
    EXPECT_EQ(std::count(demo.events.begin(), demo.events.end(), "cmdSave.Click"), 0);
}

TEST(RealControl, anAccessKeyClicksItsButtonOnceAndFocusesIt)
{
    Demo demo;
    demo.focusOn(L"txtName");
    ::RedrawWindow(demo.control(L"cmdThick").window(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    demo.events.clear();
    demo.key(WM_SYSCHAR, 't');
    EXPECT_EQ(std::count(demo.events.begin(), demo.events.end(), "cmdThick.Click"), 1);
    EXPECT_EQ(demo.form().focus().active(), &demo.control(L"cmdThick"));
}

TEST(RealControl, tabLeavesAButtonAndSkipsTheDisabledOne)
{
    Demo demo;
    demo.focusOn(L"cmdBare");
    demo.key(WM_KEYDOWN, VK_TAB);
    EXPECT_EQ(demo.form().focus().active(), &demo.control(L"cmdNoFocus"));
}

TEST(RealControl, theMouseEntersPressesAndLeavesAButton)
{
    Demo demo;
    demo.form().show();
    POINT inside{20, 10};
    ::ClientToScreen(demo.control(L"cmdPlain").window(), &inside);
    ::SetCursorPos(inside.x, inside.y);
    ::mouse_event(MOUSEEVENTF_MOVE, 1, 0, 0, 0);
    EXPECT_TRUE(demo.waitFor("cmdPlain.MouseEnter"));
    ::mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
    EXPECT_TRUE(demo.waitFor("cmdPlain.MouseDown"));
    ::mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
    EXPECT_TRUE(demo.waitFor("cmdPlain.Click"));
    EXPECT_EQ(demo.form().focus().active(), &demo.control(L"cmdPlain"));
    ::SetCursorPos(0, 0);
    ::mouse_event(MOUSEEVENTF_MOVE, 0, 1, 0, 0);
    EXPECT_TRUE(demo.waitFor("cmdPlain.MouseExit"));
}

TEST(RealControl, typedKeysReachTheirButtonsOnceEach)
{
    Demo demo;
    demo.form().show();
    demo.focusOn(L"cmdPlain");
    demo.events.clear();
    typeKey('T', VK_MENU);
    EXPECT_TRUE(demo.waitFor("cmdThick.Click"));
    typeKey(VK_TAB);
    typeKey(VK_SPACE);
    EXPECT_TRUE(demo.waitFor("cmdBare.Click"));
    typeKey(VK_ESCAPE);
    EXPECT_TRUE(demo.waitFor("cmdCancel.Click"));
    std::vector<std::string> clicks;
    std::copy_if(demo.events.begin(), demo.events.end(), std::back_inserter(clicks),
                 [](std::string const& event) { return event.ends_with(".Click"); });
    EXPECT_THAT(clicks, ElementsAre("cmdThick.Click", "cmdBare.Click", "cmdCancel.Click"));
}

TEST(RealControl, aDesignFormRaisesNothing)
{
    Demo demo(UserMode::Design);
    for (auto const& control : demo.form().controls())
        ::RedrawWindow(control->window(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    ::SendMessageW(demo.control(L"cmdPlain").window(), WM_LBUTTONDOWN, MK_LBUTTON, 0);
    ::SendMessageW(demo.control(L"cmdPlain").window(), WM_LBUTTONUP, 0, 0);
    EXPECT_THAT(demo.events, IsEmpty());
}

TEST(RealControl, aClosedFormLeavesNothingOfTheComponentBehind)
{
    ASSERT_EQ(::GetModuleHandleW(L"quilbt.ocx"), nullptr) << "an earlier test has left the component loaded";
    {
        Demo demo;
        demo.focusOn(L"cmdThick");
        demo.key(WM_KEYDOWN, VK_RETURN);
        EXPECT_NE(::GetModuleHandleW(L"quilbt.ocx"), nullptr);
    }
    EXPECT_EQ(::GetModuleHandleW(L"quilbt.ocx"), nullptr) << "somebody still holds an object of it";
}

} // namespace
} // namespace quillet::gallery::test

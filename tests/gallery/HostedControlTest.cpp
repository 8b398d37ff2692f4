// The life of a hosted control: what the host calls, in which order; and the component's own, found by file.
#include "gallery/host/HostedControl.h"

#include "gallery/FormKit.h"
#include "gallery/host/Extender.h"
#include "kit/Input.h"

#include <iterator>

namespace quillet::gallery::test {
namespace {

std::string const kFakeButton = node("Fake.Button", "One",
                                     "Left = 150\nTop = 300\nWidth = 1500\nHeight = 450\n"
                                     "Caption = \"Go\"\nTabIndex = 4\nToolTipText = \"tip\"");

/// What happens to a control of these traits until its form is open.
std::vector<std::string> callsOf(FakeTraits const& traits)
{
    return FormKit(kFakeButton, {{L"Button", traits}}).fake(L"One").calls;
}

TEST(HostedControl, theSiteComesFirstWhereTheControlWantsItSo)
{
    EXPECT_THAT(callsOf({}), ElementsAreArray({"GetMiscStatus", "SetClientSite", "Load", "Advise events",
                                               "SetExtent", "DoVerb -5"}));
}

TEST(HostedControl, theSiteComesBehindLoadingElsewhere)
{
    EXPECT_THAT(callsOf({.status = OLEMISC_INSIDEOUT}),
                ElementsAreArray(
                    {"GetMiscStatus", "Load", "SetClientSite", "Advise events", "SetExtent", "DoVerb -5"}));
}

TEST(HostedControl, aControlWithoutAPropertyBagIsInitialisedAsNew)
{
    EXPECT_THAT(callsOf({.loadResult = E_NOTIMPL}),
                ElementsAreArray({"GetMiscStatus", "SetClientSite", "Load", "InitNew", "Advise events",
                                  "SetExtent", "DoVerb -5"}));
}

TEST(HostedControl, itsEndUndoesEverythingInOrder)
{
    FormKit kit(kFakeButton);
    ComPtr<FakeControl> const fake = &kit.fake(L"One");
    fake->calls.clear();
    kit.form().close();
    EXPECT_THAT(fake->calls,
                ElementsAreArray({"Unadvise 12", "InPlaceDeactivate", "Close", "SetClientSite null"}));
    EXPECT_TRUE(kit.isClosed);
    EXPECT_EQ(fake->AddRef(), 2u) << "somebody still holds the control";
    fake->Release();
}

TEST(HostedControl, itsBagHasItsOwnPropertiesOnly)
{
    FormKit kit(kFakeButton);
    PropertyBag& loaded = *kit.fake(L"One").loaded.get();
    ASSERT_EQ(loaded.entries().size(), 1u);
    EXPECT_EQ(loaded.entries()[0].name, L"Caption");
}

TEST(HostedControl, twipsBecomeHimetricExtentsAndPixels)
{
    FormKit kit(kFakeButton);
    FakeControl& fake = kit.fake(L"One");
    EXPECT_EQ(fake.extent.cx, 2646); // 1500 twips, 1440 an inch, 2540 HIMETRIC an inch
    EXPECT_EQ(fake.extent.cy, 794);
    Resolution const scale = screenResolution();
    EXPECT_EQ(fake.place.left, scale.pixelsX(150));
    EXPECT_EQ(fake.place.top, scale.pixelsY(300));
    EXPECT_EQ(fake.place.right, scale.pixelsX(1650));
    EXPECT_EQ(fake.place.bottom, scale.pixelsY(750));
}

TEST(HostedControl, aFormInPixelsPlacesItsControlsInPixelsButNotWhatStandsInAFrame)
{
    FormKit kit("ScaleMode = 3\n" +
                node("Fake.Button", "One", "Left = 10\nTop = 20\nWidth = 100\nHeight = 30") +
                node("VB.Frame", "Group", "Left = 0\nTop = 100\nWidth = 200\nHeight = 100",
                     node("Fake.Button", "Two", "Left = 150\nTop = 300\nWidth = 1500\nHeight = 450")));
    EXPECT_EQ(kit.fake(L"One").place.left, 10);
    EXPECT_EQ(kit.fake(L"One").place.bottom, 50);
    EXPECT_EQ(kit.fake(L"Two").place.left, screenResolution().pixelsX(150));
}

TEST(HostedControl, itsWindowStandsInItsContainersWindow)
{
    FormKit kit(kFakeButton +
                node("VB.Frame", "Group", "Width = 3000\nHeight = 1500", node("Fake.Button", "Two")));
    EXPECT_EQ(::GetParent(kit.fake(L"One").hwnd()), kit.form().window());
    EXPECT_EQ(::GetParent(kit.fake(L"Two").hwnd()), kit.control(L"Group").window());
}

TEST(HostedControl, anInvisibleControlIsActivatedWhenItIsShown)
{
    FormKit kit(node("Fake.Button", "One", "Visible = 0 'False"));
    FakeControl& fake = kit.fake(L"One");
    EXPECT_EQ(fake.hwnd(), nullptr);
    putByName(kit.extender(L"One"), L"Visible", Variant::ofBool(true));
    EXPECT_NE(fake.hwnd(), nullptr);
    putByName(kit.extender(L"One"), L"Visible", Variant::ofBool(false));
    EXPECT_EQ(fake.calls.back(), "DoVerb " + std::to_string(OLEIVERB_HIDE));
}

TEST(HostedControl, whatTheControlAsksForInPixelsBecomesItsPlaceInTwips)
{
    FormKit kit(kFakeButton);
    FakeControl& fake = kit.fake(L"One");
    auto const site = query<IOleInPlaceSite>(fake.site());
    RECT const wish{20, 30, 120, 70};
    EXPECT_EQ(site->OnPosRectChange(&wish), S_OK);
    Resolution const scale = screenResolution();
    EXPECT_EQ(kit.control(L"One").state().place,
              (Place{scale.twipsX(20), scale.twipsY(30), scale.twipsX(100), scale.twipsY(40)}));
    EXPECT_TRUE(::EqualRect(&fake.place, &wish));
    EXPECT_EQ(site->OnPosRectChange(nullptr), E_POINTER);
}

TEST(HostedControl, eventsComeToTheFormUntilItCloses)
{
    FormKit kit(kFakeButton);
    ComPtr<FakeControl> const fake = &kit.fake(L"One");
    fake->raise(4);
    EXPECT_THAT(kit.events, ElementsAreArray({L"One.Event 4"}));
    kit.form().close();
    EXPECT_FALSE(fake->hasListener());
}

TEST(HostedControl, aControlThatCannotBeMadeLeavesAPlaceholderAndTheRestOpens)
{
    FormKit kit(node("Gone.Widget", "Lost", "Left = 15") + node("Fake.Broken", "Sick") +
                    node("VB.Nonsense", "Odd") + kFakeButton,
                {{L"Broken", {.loadResult = E_FAIL}}});
    ASSERT_EQ(kit.form().controls().size(), 4u);
    ASSERT_EQ(kit.warnings.size(), 2u);
    EXPECT_EQ(kit.warnings[0], L"test.frm:5: Gone.Widget cannot be opened: there is no such library");
    EXPECT_EQ(kit.warnings[1], L"test.frm:8: Fake.Broken cannot be opened: it answers 0x80004005");
    wchar_t text[32] = {};
    ::GetWindowTextW(kit.control(L"Lost").window(), text, 32);
    EXPECT_STREQ(text, L"Gone.Widget");
    ::GetWindowTextW(kit.control(L"Odd").window(), text, 32);
    EXPECT_STREQ(text, L"VB.Nonsense");
    EXPECT_NE(kit.fake(L"One").hwnd(), nullptr);
}

TEST(HostedControl, aControlThatRefusedToLoadKeepsNoWayBackIntoTheForm)
{
    ComPtr<FakeControl> const fake = makeCounted<FakeControl>(FakeTraits{.loadResult = E_FAIL});
    FormOptions options;
    options.factory = [&](auto, auto) { return NewControl{fake->identity(), {}, {}}; };
    Form form(readForm(formText(kFakeButton), L"test.frm"), std::move(options));
    EXPECT_EQ(fake->site(), nullptr);
    EXPECT_EQ(fake->calls.back(), "SetClientSite null");
}

TEST(HostedControl, whatItSavesComesBackInABag)
{
    FormKit kit(kFakeButton);
    auto& hosted = dynamic_cast<HostedControl&>(kit.control(L"One"));
    EXPECT_EQ(hosted.save(false)->find(L"Caption")->toString().view(), L"Go");
}

TEST(HostedControl, theSiteOutlivesTheFormHarmlessly)
{
    ComPtr<IOleClientSite> site;
    {
        FormKit kit(kFakeButton);
        site = kit.fake(L"One").site();
    }
    ComPtr<IOleContainer> container;
    EXPECT_EQ(site->GetContainer(container.put()), E_UNEXPECTED);
    HWND window = nullptr;
    EXPECT_EQ(site.as<IOleInPlaceSiteEx>()->GetWindow(&window), E_UNEXPECTED);
    EXPECT_EQ(window, nullptr);
}

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
    EXPECT_FALSE(demo.get(L"cmdDisabled", L"Enabled").toBool());
    EXPECT_TRUE(demo.get(L"cmdBlank", L"OfficeXPColors").toBool());
    auto const font = demo.get(L"cmdItalic", L"Font").toObject().as<IFont>();
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
    EXPECT_EQ(demo.count("cmdThick.Click"), 1);
    EXPECT_EQ(demo.count("cmdSave.Click"), 0);
}

TEST(RealControl, anAccessKeyClicksItsButtonOnceAndFocusesIt)
{
    Demo demo;
    demo.focusOn(L"txtName");
    ::RedrawWindow(demo.control(L"cmdThick").window(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    demo.events.clear();
    demo.key(WM_SYSCHAR, 't');
    EXPECT_EQ(demo.count("cmdThick.Click"), 1);
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
    kit::press(kit::MouseButton::Left);
    EXPECT_TRUE(demo.waitFor("cmdPlain.MouseDown"));
    kit::release(kit::MouseButton::Left);
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
    EXPECT_THAT(clicks, ElementsAreArray({"cmdThick.Click", "cmdBare.Click", "cmdCancel.Click"}));
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

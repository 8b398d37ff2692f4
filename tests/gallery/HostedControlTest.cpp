// The life of a hosted control: what the host calls, and in which order.
#include "gallery/host/HostedControl.h"

#include "gallery/FormKit.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillet::gallery::test {
namespace {

using ::testing::ElementsAre;

std::string const kFakeButton = node("Fake.Button", "One",
                                     "Left = 150\nTop = 300\nWidth = 1500\nHeight = 450\n"
                                     "Caption = \"Go\"\nTabIndex = 4\nToolTipText = \"tip\"");

TEST(HostedControl, theSiteComesFirstWhereTheControlWantsItSo)
{
    FormKit kit(kFakeButton);
    EXPECT_THAT(kit.fake(L"One").calls, ElementsAre("GetMiscStatus", "SetClientSite", "Load", "Advise events",
                                                    "SetExtent", "DoVerb -5"));
}

TEST(HostedControl, theSiteComesBehindLoadingElsewhere)
{
    FakeTraits traits;
    traits.status = OLEMISC_INSIDEOUT;
    FormKit kit(kFakeButton, {{L"Button", traits}});
    EXPECT_THAT(kit.fake(L"One").calls, ElementsAre("GetMiscStatus", "Load", "SetClientSite", "Advise events",
                                                    "SetExtent", "DoVerb -5"));
}

TEST(HostedControl, aControlWithoutAPropertyBagIsInitialisedAsNew)
{
    FakeTraits traits;
    traits.loadResult = E_NOTIMPL;
    FormKit kit(kFakeButton, {{L"Button", traits}});
    EXPECT_THAT(kit.fake(L"One").calls, ElementsAre("GetMiscStatus", "SetClientSite", "Load", "InitNew",
                                                    "Advise events", "SetExtent", "DoVerb -5"));
}

TEST(HostedControl, itsEndUndoesEverythingInOrder)
{
    FormKit kit(kFakeButton);
    ComPtr<FakeControl> const fake = &kit.fake(L"One");
    fake->calls.clear();
    kit.form().close();
    EXPECT_THAT(fake->calls, ElementsAre("Unadvise 12", "InPlaceDeactivate", "Close", "SetClientSite null"));
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
    EXPECT_THAT(kit.events, ElementsAre(L"One.Event 4"));
    kit.form().close();
    EXPECT_FALSE(fake->hasListener());
}

TEST(HostedControl, aControlThatCannotBeMadeLeavesAPlaceholderAndTheRestOpens)
{
    FakeTraits broken;
    broken.loadResult = E_FAIL;
    FormKit kit(node("Gone.Widget", "Lost", "Left = 15") + node("Fake.Broken", "Sick") +
                    node("VB.Nonsense", "Odd") + kFakeButton,
                {{L"Broken", broken}});
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
    FakeTraits broken;
    broken.loadResult = E_FAIL;
    ComPtr<FakeControl> const fake = makeCounted<FakeControl>(broken);
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

} // namespace
} // namespace quillet::gallery::test
